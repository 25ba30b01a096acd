#include "ui/SceneWindow.h"

#include "core/i18n/LanguageManager.h"
#include "ui/WidgetSwap.h"

#include <QCloseEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

SceneWindow::SceneWindow(const QString &sceneId, const QString &titleKey, LanguageManager &language,
                         RootFactory makeRoot, QWidget *parent)
    : QWidget(parent, Qt::Window), m_titleKey(titleKey), m_language(language),
      m_makeRoot(std::move(makeRoot))
{
    setObjectName(sceneId);
    m_layout = new QVBoxLayout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSizeConstraint(QLayout::SetFixedSize);
    connect(&language, &LanguageManager::currentLanguageChanged, this,
            &SceneWindow::updateSceneTitle);
    connect(&language, &LanguageManager::bundleChanged, this, &SceneWindow::updateSceneTitle);
    updateSceneTitle();
}

void SceneWindow::rebuild()
{
    if (m_root)
        setRoot(m_makeRoot());
}

void SceneWindow::setVisible(bool visible)
{
    if (visible && !m_root)
        setRoot(m_makeRoot());
    if (visible && !m_placed) {
        m_placed = true;
        m_layout->activate();
        const QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
        if (!screen)
            screen = QGuiApplication::primaryScreen();
        if (screen)
            setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size(),
                                            screen->availableGeometry()));
    }
    QWidget::setVisible(visible);
}

void SceneWindow::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    if (event->isAccepted() && m_root) {
        m_root->deleteLater();
        m_root = nullptr;
    }
}

void SceneWindow::setRoot(QWidget *root)
{
    swapWidget(m_layout, m_root, root);
}

void SceneWindow::updateSceneTitle()
{
    setWindowTitle(m_language.localizedString(m_titleKey));
}
