// Properties of widgets and of the application that are asked for less often.
#include "pixels.h"
#include "printers.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qbitmap.h>
#include <qcheckbox.h>
#include <qcursor.h>
#include <qdesktopwidget.h>
#include <qdialog.h>
#include <qeventloop.h>
#include <qfontinfo.h>
#include <qframe.h>
#include <qkeysequence.h>
#include <qlabel.h>
#include <qobjectlist.h>
#include <qpushbutton.h>
#include <qscrollbar.h>
#include <qwidgetlist.h>

TEST(WidgetForms, BaseSizesAndIncrementsAreKept)
{
    QWidget widget(nullptr, "widget");
    widget.setBaseSize(QSize(11, 12));
    EXPECT_EQ(QSize(11, 12), widget.baseSize());
    widget.setBaseSize(13, 14);
    EXPECT_EQ(QSize(13, 14), widget.baseSize());
    widget.setSizeIncrement(5, 6);
    EXPECT_EQ(QSize(5, 6), widget.sizeIncrement());
}

TEST(WidgetForms, LimitsOfOneDirection)
{
    QWidget widget(nullptr, "widget");
    widget.setFixedSize(QSize(120, 80));
    EXPECT_EQ(120, widget.minimumWidth());
    EXPECT_EQ(80, widget.minimumHeight());
    EXPECT_EQ(120, widget.maximumWidth());
    EXPECT_EQ(QSize(120, 80), widget.size());
    widget.setMinimumHeight(10);
    widget.setMaximumHeight(20);
    EXPECT_EQ(20, widget.height());
    widget.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding, true);
    EXPECT_EQ(QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding, true), widget.sizePolicy());
    QScrollBar bar(&widget);
    EXPECT_EQ(Qt::Vertical, bar.orientation());
    bar.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    EXPECT_EQ(QSizePolicy::Expanding, bar.sizePolicy().horData());
    bar.setSizePolicy(QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    EXPECT_EQ(QSizePolicy::Fixed, bar.sizePolicy().horData());
}

TEST(WidgetForms, ColoursByRole)
{
    QWidget widget(nullptr, "widget");
    widget.setPaletteBackgroundColor(Qt::green);
    widget.setPaletteForegroundColor(Qt::blue);
    EXPECT_EQ(Qt::green, widget.backgroundColor());
    EXPECT_EQ(Qt::blue, widget.foregroundColor());
    EXPECT_FALSE(widget.backgroundPixmap());
    QPixmap tile(4, 4);
    tile.fill(Qt::red);
    widget.setBackgroundPixmap(tile);
    ASSERT_TRUE(widget.backgroundPixmap());
    ASSERT_TRUE(widget.erasePixmap());
    EXPECT_EQ(QSize(4, 4), widget.erasePixmap()->size());
    EXPECT_EQ(QWidget::WidgetOrigin, widget.backgroundOrigin());
    widget.setBackgroundOrigin(QWidget::ParentOrigin);
    EXPECT_EQ(QWidget::ParentOrigin, widget.backgroundOrigin());
}

TEST(WidgetForms, ChildrenAndTheirRegions)
{
    QWidget window(nullptr, "window");
    window.resize(100, 100);
    QWidget child(&window, "child");
    child.setGeometry(10, 20, 30, 40);
    EXPECT_EQ(&child, window.childAt(QPoint(15, 25)));
    EXPECT_FALSE(window.childAt(QPoint(5, 5)));
    EXPECT_EQ(QRect(10, 20, 30, 40), window.childrenRegion().boundingRect());
    showAndWait(&window);
    EXPECT_EQ(QRect(0, 0, 30, 40), child.clipRegion().boundingRect());
    EXPECT_TRUE(child.isVisibleToTLW());
    EXPECT_TRUE(child.isEnabledToTLW());
    EXPECT_TRUE(child.isShown());
    child.setHidden(true);
    EXPECT_FALSE(child.isShown());
    EXPECT_FALSE(child.isVisibleToTLW());
    window.setEnabled(false);
    EXPECT_FALSE(child.isEnabledToTLW());
}

TEST(WidgetForms, DrawAndEraseByThemselves)
{
    QWidget window(nullptr, "window");
    window.setPaletteBackgroundColor(Qt::white);
    window.setPaletteForegroundColor(Qt::black);
    window.resize(80, 40);
    showAndWait(&window);
    window.drawText(5, 15, "One");
    const int one = Pixels::of(&window).count(0x000000);
    EXPECT_GT(one, 5);
    window.drawText(QPoint(5, 32), "One");
    EXPECT_EQ(2 * one, Pixels::of(&window).count(0x000000));
    window.erase(QRect(0, 0, 80, 20));
    EXPECT_EQ(one, Pixels::of(&window).count(0x000000));
    EXPECT_TRUE(window.isUpdatesEnabled());
    window.setUpdatesEnabled(false);
    EXPECT_FALSE(window.isUpdatesEnabled());
}

TEST(WidgetForms, WindowStates)
{
    QWidget window(nullptr, "window");
    window.setGeometry(100, 100, 200, 100);
    EXPECT_EQ(uint(Qt::WindowNoState), window.windowState());
    EXPECT_FALSE(window.isFullScreen());
    window.showFullScreen();
    EXPECT_TRUE(window.isFullScreen());
    EXPECT_TRUE(window.windowState() & Qt::WindowFullScreen);
    EXPECT_TRUE(waitFor([&] { return window.width() == QApplication::desktop()->width(); }));
    window.setWindowState(Qt::WindowNoState);
    EXPECT_FALSE(window.isFullScreen());
    EXPECT_TRUE(waitFor([&] { return window.width() == 200; }));
}

TEST(WidgetForms, GrabTheMouseWithACursor)
{
    QWidget window(nullptr, "window");
    showAndWait(&window);
    QCursor wait(Qt::WaitCursor);
    QCursor cursor;
    cursor = wait;
    const QCursor copy(cursor);
    EXPECT_EQ(Qt::WaitCursor, copy.shape());
    window.grabMouse(copy);
    EXPECT_EQ(&window, QWidget::mouseGrabber());
    window.releaseMouse();
    EXPECT_FALSE(QWidget::mouseGrabber());
    QCursor::setPos(QPoint(321, 234));
    EXPECT_EQ(QPoint(321, 234), QCursor::pos());
}

TEST(WidgetForms, ListsOfWidgets)
{
    QWidget first(nullptr, "first");
    QWidgetList list;
    list.append(&first);
    const QWidgetList copy(list);
    QWidgetList assigned;
    assigned = copy;
    ASSERT_EQ(1u, assigned.count());
    QWidgetListIt each(assigned);
    EXPECT_EQ(&first, each.current());
    ++each;
    QWidgetListIt other(copy);
    each = other;
    EXPECT_EQ(&first, each.current());
    QObjectList objects;
    objects.append(&first);
    QObjectList same;
    same = objects;
    EXPECT_EQ(&first, same.first());
}

TEST(ControlForms, SettingsAreKept)
{
    QPushButton button("text", nullptr, "button");
    EXPECT_FALSE(button.autoResize());
    button.setAutoResize(true);
    EXPECT_TRUE(button.autoResize());
    QLabel label(nullptr, "label");
    label.setTextFormat(Qt::PlainText);
    EXPECT_EQ(Qt::PlainText, label.textFormat());
    QLabel forButton(&button, "&Text", nullptr, "for the button");
    EXPECT_EQ(&button, forButton.buddy());
    QFrame frame(nullptr, "frame");
    EXPECT_TRUE(frame.lineShapesOk());
    QDialog dialog(nullptr, "dialog");
    EXPECT_FALSE(dialog.isModal());
    dialog.setModal(true);
    EXPECT_TRUE(dialog.isModal());
    dialog.setOrientation(Qt::Vertical);
    EXPECT_EQ(Qt::Vertical, dialog.orientation());
    EXPECT_FALSE(dialog.extension());
    QWidget* extension = new QWidget(&dialog, "extension");
    dialog.setExtension(extension);
    EXPECT_EQ(extension, dialog.extension());
}

TEST(ControlForms, ScrollBarsTakeTheirRangeByEnds)
{
    QScrollBar bar(Qt::Horizontal, nullptr, "bar");
    bar.setMinValue(10);
    bar.setMaxValue(20);
    EXPECT_EQ(10, bar.minValue());
    EXPECT_EQ(20, bar.maxValue());
    EXPECT_TRUE(bar.tracking());
    bar.resize(200, 16);
    bar.setValue(10);
    const int atStart = bar.sliderStart();
    bar.setValue(20);
    EXPECT_GT(bar.sliderStart(), atStart);
}

TEST(ApplicationForms, SettingsAreKept)
{
    EXPECT_GE(qApp->argc(), 1);
    const int lines = QApplication::wheelScrollLines();
    QApplication::setWheelScrollLines(7);
    EXPECT_EQ(7, QApplication::wheelScrollLines());
    QApplication::setWheelScrollLines(lines);
    const int distance = QApplication::startDragDistance();
    QApplication::setStartDragDistance(9);
    EXPECT_EQ(9, QApplication::startDragDistance());
    QApplication::setStartDragDistance(distance);
    const int time = QApplication::startDragTime();
    QApplication::setStartDragTime(333);
    EXPECT_EQ(333, QApplication::startDragTime());
    QApplication::setStartDragTime(time);
    const int flash = QApplication::cursorFlashTime();
    QApplication::setCursorFlashTime(200);
    EXPECT_EQ(200, QApplication::cursorFlashTime());
    QApplication::setCursorFlashTime(flash);
    EXPECT_FALSE(QApplication::hasGlobalMouseTracking());
    QApplication::setGlobalMouseTracking(true);
    EXPECT_TRUE(QApplication::hasGlobalMouseTracking());
    QApplication::setGlobalMouseTracking(false);
    EXPECT_EQ(QFontMetrics(QApplication::font()).height(), QApplication::fontMetrics().height());
    qApp->flush();
}

TEST(ColourForms, PartsAreGiven)
{
    QColor color(1, 2, 3);
    int r = 0;
    int g = 0;
    int b = 0;
    color.getRgb(&r, &g, &b);
    EXPECT_EQ(color, QColor(r, g, b));
    r = g = b = 0;
    color.rgb(&r, &g, &b);
    EXPECT_EQ(color, QColor(r, g, b));
    int h = 0;
    int s = 0;
    int v = 0;
    color.getHsv(&h, &s, &v);
    int h2 = 0;
    int s2 = 0;
    int v2 = 0;
    color.getHsv(h2, s2, v2);
    EXPECT_EQ(h, h2);
    EXPECT_EQ(s, s2);
    EXPECT_EQ(v, v2);
    EXPECT_EQ(3, v);
    color.setRgb(0xff0a0b0c);
    EXPECT_EQ(QColor(10, 11, 12), color);
    EXPECT_EQ(color.pixel(), color.alloc());
    EXPECT_EQ(140, qGray(qRgb(100, 150, 200)));
    QPalette palette;
    palette.setBrush(QColorGroup::Base, QBrush(Qt::red));
    EXPECT_EQ(Qt::red, palette.active().base());
    EXPECT_EQ(Qt::red, palette.disabled().base());
}

TEST(FontForms, AreChangedOneByOne)
{
    QFont font;
    font.setFamily("DejaVu Serif");
    EXPECT_EQ("DejaVu Serif", font.family());
    font.setPixelSizeFloat(18.0f);
    EXPECT_EQ(18, font.pixelSize());
    EXPECT_FALSE(font.rawMode());
    font.setRawMode(true);
    EXPECT_TRUE(font.rawMode());
    QFont same;
    same = font;
    EXPECT_EQ(font, same);
    font.setStyleHint(QFont::Serif);
    EXPECT_EQ(QFont::Serif, QFontInfo(font).styleHint());
    const QFontMetrics metrics(font);
    QFontMetrics copy(metrics);
    EXPECT_EQ(metrics.width("abc"), copy.width("abc"));
    copy = QFontMetrics(QFont("DejaVu Sans", 30));
    EXPECT_LT(metrics.height(), copy.height());
    QFont::insertSubstitution("My own font", "DejaVu Sans Mono");
    EXPECT_EQ("DejaVu Sans Mono", QFont::substitute("My own font"));
    QFont::removeSubstitution("My own font");
}

TEST(KeySequences, AreCompared)
{
    const QKeySequence none;
    const QKeySequence save(Qt::CTRL + Qt::Key_S);
    EXPECT_TRUE(none.isEmpty());
    EXPECT_TRUE(none != save);
    EXPECT_TRUE(save == QKeySequence(Qt::CTRL + Qt::Key_S));
}
