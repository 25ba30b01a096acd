#include "ui/WindowTitleUpdater.h"

#include "core/i18n/LanguageManager.h"
#include "foundation/TimerFactory.h"
#include "ui/WindowList.h"

#include <QEvent>
#include <QWidget>

WindowTitleUpdater::WindowTitleUpdater(QWidget *view, const QString &titleKey,
                                       LanguageManager &language, TimerFactory &timers)
    : QObject(view), m_titleKey(titleKey), m_language(language), m_timers(timers)
{
    view->installEventFilter(this);
    connect(&language, &LanguageManager::currentLanguageChanged, this,
            &WindowTitleUpdater::updateTitle);
}

bool WindowTitleUpdater::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show)
        updateTitle();
    return QObject::eventFilter(watched, event);
}

void WindowTitleUpdater::updateTitle()
{
    // The write outlives the view: a rebuilt view must not cancel its predecessor's.
    m_timers.singleShot(delay, &m_language, [&language = m_language, key = m_titleKey] {
        if (QWidget *window = WindowList::activeOrFirstVisible())
            window->setWindowTitle(language.localizedString(key));
    });
}
