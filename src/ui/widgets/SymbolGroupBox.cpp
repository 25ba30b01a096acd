#include "ui/widgets/SymbolGroupBox.h"

#include "core/i18n/LanguageManager.h"
#include "ui/LocalizedText.h"
#include "ui/widgets/SymbolLabel.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

SymbolGroupBox::SymbolGroupBox(const QString &symbol, const QString &titleKey,
                               LanguageManager &language, QWidget *parent)
    : QWidget(parent), m_language(language), m_titleKey(titleKey),
      m_title(new LocalizedText(titleKey, language)), m_box(new QGroupBox),
      m_content(new QVBoxLayout(m_box))
{
    QFont titleFont = m_title->font();
    titleFont.setWeight(QFont::DemiBold);
    m_title->setFont(titleFont);
    const int symbolSize = m_title->fontMetrics().height();

    auto *header = new QHBoxLayout;
    header->setContentsMargins(2, 0, 0, 0);
    header->setSpacing(6);
    header->addWidget(new SymbolLabel(symbol, symbolSize));
    header->addWidget(m_title, 1);

    m_content->setContentsMargins(12, 12, 12, 12);
    m_content->setSpacing(10);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addLayout(header);
    layout->addWidget(m_box);

    const auto nameBox = [this] { m_box->setAccessibleName(title()); };
    connect(&m_language, &LanguageManager::bundleChanged, this, nameBox);
    nameBox();
}

QString SymbolGroupBox::title() const
{
    return m_language.localizedString(m_titleKey);
}
