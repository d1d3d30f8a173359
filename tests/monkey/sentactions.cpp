// Events that the program sends or posts itself, with values that no hand would bring.
#include "world.h"

#include <qapplication.h>
#include <qevent.h>

namespace
{

int anyState(Random& r)
{
    static const int states[] = {0,
                                 0,
                                 Qt::LeftButton,
                                 Qt::RightButton,
                                 Qt::ShiftButton,
                                 Qt::ControlButton,
                                 Qt::AltButton,
                                 Qt::LeftButton | Qt::MidButton | Qt::RightButton};
    return states[r.below(8)];
}

QPoint anyPoint(Random& r)
{
    const int x = r.anyInt();
    return QPoint(x, r.anyInt());
}

void mouse(World& world, QWidget* widget)
{
    QWidget* const target = world.partOf(widget);
    static const QEvent::Type types[] = {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                         QEvent::MouseButtonDblClick, QEvent::MouseMove};
    static const int buttons[] = {Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MidButton,
                                  Qt::NoButton};
    Random& r = world.random;
    const QEvent::Type type = types[r.below(4)];
    const QPoint pos = anyPoint(r);
    const int button = type == QEvent::MouseMove ? static_cast<int>(Qt::NoButton) : buttons[r.below(5)];
    QMouseEvent event(type, pos, anyPoint(r), button, anyState(r));
    QApplication::sendEvent(target, &event);
}

void wheel(World& world, QWidget* widget)
{
    QWidget* const target = world.partOf(widget);
    Random& r = world.random;
    const QPoint pos = anyPoint(r);
    const int delta = r.anyInt();
    QWheelEvent event(pos, pos, delta, anyState(r), r.chance(50) ? Qt::Vertical : Qt::Horizontal);
    QApplication::sendEvent(target, &event);
}

void key(World& world, QWidget* widget)
{
    QWidget* const target = world.partOf(widget);
    Random& r = world.random;
    const int code = r.chance(60) ? Qt::Key_Escape + r.below(0x60) : r.anyInt();
    const int ascii = r.anyInt();
    QKeyEvent event(r.chance(80) ? QEvent::KeyPress : QEvent::KeyRelease, code, ascii, anyState(r), r.text(),
                    r.chance(10), static_cast<unsigned short>(r.below(3)));
    QApplication::sendEvent(target, &event);
}

void plain(World& world, QWidget* target)
{
    static const QEvent::Type types[] = {QEvent::Enter, QEvent::Leave, QEvent::Enter, QEvent::Leave};
    QEvent event(types[world.random.below(4)]);
    QApplication::sendEvent(target, &event);
}

void paint(World& world, QWidget* widget)
{
    QWidget* const target = world.partOf(widget);
    Random& r = world.random;
    const QPoint corner = anyPoint(r);
    const int width = r.anyInt();
    QPaintEvent event(QRect(corner, QSize(width, r.anyInt())), r.chance(50));
    QApplication::sendEvent(target, &event);
}

void closeEvent(World&, QWidget* target)
{
    QCloseEvent event;
    QApplication::sendEvent(target, &event);
}

void timer(World& world, QWidget* target)
{
    QTimerEvent event(world.random.anyInt());
    QApplication::sendEvent(target, &event);
}

void contextMenu(World& world, QWidget* target)
{
    const QPoint pos = anyPoint(world.random);
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, pos, anyState(world.random));
    QApplication::sendEvent(target, &event);
}

void posted(World& world, QWidget* target)
{
    Random& r = world.random;
    switch (r.below(4)) {
    case 0:
        QApplication::postEvent(target, new QCustomEvent(QEvent::User + r.below(10)));
        break;
    case 1:
        QApplication::postEvent(target, new QEvent(r.chance(50) ? QEvent::Enter : QEvent::Leave));
        break;
    case 2:
        QApplication::postEvent(target,
                                new QKeyEvent(QEvent::KeyPress, Qt::Key_0 + r.below(10), '0', 0, "0"));
        break;
    default:
        QApplication::removePostedEvents(target);
    }
}

} // namespace

const std::vector<Action> sentActions = {
    {"send mouse", 60, "QWidget", mouse}, {"send wheel", 12, "QWidget", wheel},
    {"send key", 50, "QWidget", key},     {"send crossing", 20, "QWidget", plain},
    {"send paint", 12, "QWidget", paint}, {"send close", 4, "QWidget", closeEvent},
    {"send timer", 6, "QWidget", timer},  {"send menu", 4, "QWidget", contextMenu},
    {"post", 16, "QWidget", posted},
};
