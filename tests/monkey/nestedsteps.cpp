#include "nestedsteps.h"

#include "world.h"

#include <qapplication.h>
#include <qdialog.h>

#include <algorithm>

NestedSteps::NestedSteps(World& world) : m_world(world)
{
    startTimer(0);
}

void NestedSteps::timerEvent(QTimerEvent*)
{
    const int level = qApp->loopLevel();
    m_left.resize(static_cast<std::size_t>(std::max(level, 1)), -1);
    if (level == 0)
        return;
    int& left = m_left.back();
    if (left < 0)
        left = m_world.depth > 3 ? 0 : m_world.random.below(8);
    if (left > 0) {
        --left;
        act(m_world);
        return;
    }
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal)
        qApp->exit_loop();
    else
        end(modal);
}

// Refuses a dialog, accepts it by its default button, or lets it run without being seen.
void NestedSteps::end(QWidget* modal)
{
    const int way = modal->inherits("QDialog") ? m_world.random.below(3) : 2;
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, '\r', 0, "\r");
    if (way == 0)
        modal->close();
    else if (way == 1)
        QApplication::sendEvent(modal, &enter);
    else
        modal->hide();
}
