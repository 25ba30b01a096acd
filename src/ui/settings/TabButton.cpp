#include "ui/settings/TabButton.h"

#include "core/i18n/LanguageManager.h"
#include "ui/Colours.h"
#include "ui/SymbolTable.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>

namespace {

constexpr int symbolSize = 16;

// A page tab for assistive technology: named by its title, selected while its page shows,
// pressed like a button.
class TabButtonAccessible : public QAccessibleWidget {
public:
    explicit TabButtonAccessible(TabButton *button)
        : QAccessibleWidget(button, QAccessible::PageTab)
    {
    }

    QString text(QAccessible::Text type) const override
    {
        if (type == QAccessible::Name)
            return button()->title();
        return QAccessibleWidget::text(type);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = button()->isSelected();
        return state;
    }
    QStringList actionNames() const override
    {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString &action) override
    {
        if (action == pressAction())
            button()->click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    TabButton *button() const { return static_cast<TabButton *>(widget()); }
};

QAccessibleInterface *accessibleFactory(const QString &className, QObject *object)
{
    if (className == QLatin1String(TabButton::staticMetaObject.className()) && object
        && object->isWidgetType())
        return new TabButtonAccessible(static_cast<TabButton *>(object));
    return nullptr;
}

} // namespace

TabButton::TabButton(SettingsTab tag, LanguageManager &language, QWidget *parent)
    : QAbstractButton(parent), m_tag(tag), m_title(language.localizedString(tag.titleKey()))
{
    static const bool factoryInstalled = [] {
        QAccessible::installFactory(accessibleFactory);
        return true;
    }();
    Q_UNUSED(factoryInstalled);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TabButton::setSelection(const QString &selection)
{
    const bool selected = selection == m_tag.rawValue();
    if (selected == m_selected)
        return;
    m_selected = selected;
    update();
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

QSize TabButton::sizeHint() const
{
    const int textHeight = fontMetrics().height();
    return {horizontalMargin * 2 + symbolWidth + spacing + fontMetrics().horizontalAdvance(m_title),
            verticalMargin * 2 + qMax(symbolSize, textHeight)};
}

QColor TabButton::textColour() const
{
    return m_selected ? palette().color(QPalette::Highlight)
                      : palette().color(QPalette::WindowText);
}

void TabButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_selected)
        painter.fillRect(
            rect(), withAlpha(palette().color(QPalette::Highlight), selectedBackgroundOpacity));
    const QRect content =
        rect().adjusted(horizontalMargin, verticalMargin, -horizontalMargin, -verticalMargin);
    const qreal ratio = devicePixelRatioF();
    QPixmap symbol = SymbolTable::tinted(m_tag.symbol(), textColour(), qRound(symbolSize * ratio));
    symbol.setDevicePixelRatio(ratio);
    const QRect symbolSlot(content.left(), content.top(), symbolWidth, content.height());
    painter.drawPixmap(QRect(QPoint(), QSize(symbolSize, symbolSize))
                           .translated(symbolSlot.center() - QPoint(symbolSize, symbolSize) / 2),
                       symbol);
    const QRect textRect = content.adjusted(symbolWidth + spacing, 0, 0, 0);
    painter.setPen(textColour());
    painter.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(m_title, Qt::ElideRight, textRect.width()));
}
