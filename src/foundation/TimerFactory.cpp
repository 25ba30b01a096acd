#include "foundation/TimerFactory.h"

void TimerFactory::singleShot(std::chrono::milliseconds delay, QObject *context,
                              std::function<void()> work)
{
    Timer *timer = createTimer(context);
    QObject::connect(timer, &Timer::timeout, context, [timer, work = std::move(work)] {
        timer->stop();
        timer->deleteLater();
        work();
    });
    timer->start(delay, false);
}
