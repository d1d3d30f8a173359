// Size, place, being seen, focus, grabs, modal loops.
#include "world.h"

#include <qapplication.h>
#include <qcolordialog.h>
#include <qdialog.h>
#include <qpixmap.h>

namespace
{

void place(World& world, QWidget* target)
{
    const int x = world.random.between(-30, 600);
    const int y = world.random.between(-30, 500);
    const int width = world.random.below(400);
    target->setGeometry(x, y, width, world.random.below(300));
}

void placeAnywhere(World& world, QWidget* target)
{
    Random& r = world.random;
    if (r.chance(50)) {
        const int x = r.anyInt();
        target->move(x, r.anyInt());
    } else {
        const int width = r.anyInt();
        target->resize(width, r.anyInt());
    }
}

void setLimits(World& world, QWidget* target)
{
    Random& r = world.random;
    const int width = r.anyInt();
    const int height = r.anyInt();
    switch (r.below(6)) {
    case 0:
        target->setMinimumSize(width, height);
        break;
    case 1:
        target->setMaximumSize(width, height);
        break;
    case 2:
        target->setFixedSize(width, height);
        break;
    case 3:
        target->setBaseSize(width, height);
        break;
    case 4:
        target->setSizeIncrement(width, height);
        break;
    default:
        target->setMinimumSize(0, 0);
        target->setMaximumSize(32767, 32767);
        target->adjustSize();
    }
}

void setVisible(World& world, QWidget* target)
{
    switch (world.random.below(8)) {
    case 0:
    case 1:
    case 2:
    case 3:
        target->show();
        break;
    case 4:
        target->showMaximized();
        break;
    case 5:
        target->showNormal();
        break;
    default:
        target->hide();
    }
}

void setState(World& world, QWidget* target)
{
    Random& r = world.random;
    switch (r.below(7)) {
    case 0:
        target->setEnabled(r.chance(60));
        break;
    case 1:
        target->setUpdatesEnabled(r.chance(70));
        break;
    case 2:
        target->setMouseTracking(r.chance(50));
        break;
    case 3:
        target->raise();
        break;
    case 4:
        target->lower();
        break;
    case 5:
        target->stackUnder(world.pick());
        break;
    default:
        QApplication::setGlobalMouseTracking(r.chance(50));
    }
}

void setFocus(World& world, QWidget* target)
{
    static const QWidget::FocusPolicy policies[] = {QWidget::NoFocus, QWidget::TabFocus, QWidget::ClickFocus,
                                                    QWidget::StrongFocus, QWidget::WheelFocus};
    Random& r = world.random;
    QWidget* const other = world.pick();
    switch (r.below(7)) {
    case 0:
        target->clearFocus();
        break;
    case 1:
        target->setFocusPolicy(policies[r.below(5)]);
        break;
    case 2:
        QWidget::setTabOrder(target, other);
        break;
    case 3:
        target->setFocusProxy(r.chance(40) ? nullptr : other);
        break;
    case 4:
        target->setActiveWindow();
        break;
    default:
        target->setFocus();
    }
}

void grab(World& world, QWidget* target)
{
    switch (world.random.below(4)) {
    case 0:
        target->grabMouse();
        break;
    case 1:
        target->grabKeyboard();
        break;
    default:
        if (QWidget* grabber = QWidget::mouseGrabber())
            grabber->releaseMouse();
        if (QWidget* grabber = QWidget::keyboardGrabber())
            grabber->releaseKeyboard();
    }
}

void paintNow(World& world, QWidget* target)
{
    Random& r = world.random;
    const int x = r.anyInt();
    const int y = r.anyInt();
    const int width = r.anyInt();
    const int height = r.anyInt();
    switch (r.below(5)) {
    case 0:
        target->repaint(x, y, width, height, r.chance(50));
        break;
    case 1:
        target->update(x, y, width, height);
        break;
    case 2:
        target->erase(x, y, width, height);
        break;
    case 3:
        target->scroll(x, y);
        break;
    default:
        target->scroll(x, y, QRect(y, x, width, height));
    }
}

void ask(World& world, QWidget* target)
{
    Random& r = world.random;
    const QPoint p(r.anyInt(), r.anyInt());
    target->mapFromGlobal(target->mapToGlobal(p));
    target->childAt(p);
    QApplication::widgetAt(p, r.chance(50));
    target->sizeHint();
    target->minimumSizeHint();
    target->heightForWidth(r.anyInt());
    target->visibleRect();
    target->childrenRegion();
    target->frameGeometry();
    QPixmap::grabWidget(target, r.below(50), r.below(50), r.between(1, 50), r.between(1, 50));
}

void runDialog(World& world, QWidget* target)
{
    QDialog* dialog = static_cast<QDialog*>(target);
    if (world.depth > 2 || dialog->isVisible() || dialog->parentWidget())
        return;
    dialog->exec();
}

void chooseColor(World& world, QWidget*)
{
    if (world.depth > 2)
        return;
    QColorDialog::getColor(QColor(world.random.below(256), 3, 7), world.pick());
}

} // namespace

const std::vector<Action> windowActions = {
    {"place", 50, "QWidget", place},
    {"place anywhere", 30, "QWidget", placeAnywhere},
    {"limits", 24, "QWidget", setLimits},
    {"visible", 60, "QWidget", setVisible},
    {"state", 40, "QWidget", setState},
    {"focus", 40, "QWidget", setFocus},
    {"grab", 6, "QWidget", grab},
    {"paint", 20, "QWidget", paintNow},
    {"ask", 16, "QWidget", ask},
    {"run dialog", 16, "QDialog", runDialog},
    {"choose colour", 4, nullptr, chooseColor},
};
