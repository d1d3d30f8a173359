#include "colordlg.h"

#include <qcolordialog.h>
#include <qfontmetrics.h>
#include <qframe.h>
#include <qguardedptr.h>
#include <qlabel.h>
#include <qscrollbar.h>

#include "dialogparts.h"
#include "zellineeditint.h"

namespace
{

const char sourceFile[] = "colordlg.cpp";

// A column of the dialog: caption, field and scroll bar. The lines are those of their failure reports.
struct Channel {
    const char* caption;
    const char* text;
    int captionLine;
    const char* edit;
    const char* editSlot;
    int editLine;
    const char* scroll;
    const char* scrollSlot;
    int scrollLine;
};

enum { channelCount = 3 };

const Channel channels[channelCount] = {
    {"RLabel", "Red", 87, "REdit", SLOT(rEditChanged(int)), 102, "RScroll", SLOT(rScrollChanged(int)), 124},
    {"GLabel", "Green", 92, "GEdit", SLOT(gEditChanged(int)), 109, "GScroll", SLOT(gScrollChanged(int)), 130},
    {"BLabel", "Blue", 97, "BEdit", SLOT(bEditChanged(int)), 116, "BScroll", SLOT(bScrollChanged(int)), 136},
};

// Writes a number into a field. False if who heard of it has deleted the field, and the dialog with it.
bool writeNumber(ZelLineEditInt* field, int number)
{
    const QGuardedPtr<QWidget> alive(field);
    field->setText(QString::number(number));
    return alive;
}

} // namespace

ZelColorDlg::ZelColorDlg(const QColor& color, QWidget* parent, const char* name)
    : QDialog(parent, name, true, 0)
{
    init(color);
}

ZelColorDlg::ZelColorDlg(QWidget* parent, const char* name) : QDialog(parent, name, true, 0)
{
    init(QColor(0, 0, 239));
}

ZelColorDlg::~ZelColorDlg() {}

void ZelColorDlg::init(const QColor& color)
{
    setFixedSize(300, 200);
    setCaption("Choose color");
    const QRect ok = addOkAndCancel(this, buttonsTop(this), sourceFile, 73, 79);
    addCaptions();
    addEdits();
    addScrolls(ok.y() - dialogGap);
    addPanel(color);

    const int values[channelCount] = {color.red(), color.green(), color.blue()};
    for (int i = 0; i < channelCount; ++i) {
        edit(i)->setText(QString::number(values[i]));
        scroll(i)->setValue(values[i]);
    }
}

ZelLineEditInt*& ZelColorDlg::edit(int channel)
{
    static ZelLineEditInt* ZelColorDlg::*const edits[channelCount] = {
        &ZelColorDlg::rEdit, &ZelColorDlg::gEdit, &ZelColorDlg::bEdit};
    return this->*edits[channel];
}

QScrollBar*& ZelColorDlg::scroll(int channel)
{
    static QScrollBar* ZelColorDlg::*const scrolls[channelCount] = {
        &ZelColorDlg::rScroll, &ZelColorDlg::gScroll, &ZelColorDlg::bScroll};
    return this->*scrolls[channel];
}

// The three columns are as wide as the widest caption.
QRect ZelColorDlg::captionPlace(int channel) const
{
    const QFontMetrics metrics = fontMetrics();
    int widest = 1;
    for (int i = 0; i < channelCount; ++i)
        widest = QMAX(widest, metrics.width(channels[i].text));
    return QRect(dialogMargin + channel * (widest + dialogGap), dialogMargin, widest, metrics.height());
}

void ZelColorDlg::addCaptions()
{
    for (int i = 0; i < channelCount; ++i) {
        QLabel* const caption = new QLabel(channels[i].text, this, channels[i].caption, 0);
        checkCreation(caption, ZELKIT_LABEL_FAILED, sourceFile, channels[i].captionLine);
        caption->setGeometry(captionPlace(i));
    }
}

void ZelColorDlg::addEdits()
{
    for (int i = 0; i < channelCount; ++i) {
        edit(i) = new ZelLineEditInt(this, channels[i].edit, 0, 255);
        checkCreation(edit(i), ZELKIT_LINE_EDIT_FAILED, sourceFile, channels[i].editLine);
        const QRect caption = captionPlace(i);
        edit(i)->setGeometry(caption.x(), caption.y() + caption.height() + dialogGap, caption.width(),
                             caption.height() + 8);
        edit(i)->setMaxLength(3);
        connect(edit(i), SIGNAL(valueChanged(int)), channels[i].editSlot);
    }
}

// Each scroll bar stands in the middle of its column, from below its field down to `bottom`.
void ZelColorDlg::addScrolls(int bottom)
{
    for (int i = 0; i < channelCount; ++i) {
        scroll(i) = new QScrollBar(0, 255, 1, 10, 0, Vertical, this, channels[i].scroll);
        checkCreation(scroll(i), ZELKIT_SCROLL_BAR_FAILED, sourceFile, channels[i].scrollLine);
        connect(scroll(i), SIGNAL(valueChanged(int)), channels[i].scrollSlot);
        const QRect field = edit(i)->geometry();
        const int top = field.y() + field.height() + dialogGap;
        scroll(i)->setGeometry(field.x() + field.width() / 3, top, field.width() / 2, bottom - top);
    }
}

// The panel fills what is left beside the columns.
void ZelColorDlg::addPanel(const QColor& color)
{
    panel = new QFrame(this, "Panel");
    checkCreation(panel, ZELKIT_FRAME_FAILED, sourceFile, 143);
    const int left = bEdit->x() + bEdit->width() + 2 * dialogGap;
    panel->setGeometry(left, bEdit->y(), width() - dialogMargin - left,
                       bScroll->y() + bScroll->height() - bEdit->y());
    panel->setPaletteBackgroundColor(color);
    panel->setFrameStyle(sunkenPanel);
}

const QColor& ZelColorDlg::getColor()
{
    return panel->paletteBackgroundColor();
}

bool ZelColorDlg::modal()
{
    const QGuardedPtr<ZelColorDlg> alive(this); // the program goes on while the user chooses
    const QColor chosen = QColorDialog::getColor(getColor(), parentWidget(), "Internal color dialog");
    if (!alive || !chosen.isValid())
        return false;
    panel->setPaletteBackgroundColor(chosen);
    return true;
}

void ZelColorDlg::rEditChanged(int value)
{
    rScroll->setValue(value);
}

void ZelColorDlg::gEditChanged(int value)
{
    gScroll->setValue(value);
}

void ZelColorDlg::bEditChanged(int value)
{
    bScroll->setValue(value);
}

void ZelColorDlg::rScrollChanged(int value)
{
    if (!writeNumber(rEdit, value))
        return;
    QColor color = getColor();
    color.setRgb(value, color.green(), color.blue());
    panel->setPaletteBackgroundColor(color);
}

void ZelColorDlg::gScrollChanged(int value)
{
    if (!writeNumber(gEdit, value))
        return;
    QColor color = getColor();
    color.setRgb(color.red(), value, color.blue());
    panel->setPaletteBackgroundColor(color);
}

void ZelColorDlg::bScrollChanged(int value)
{
    if (!writeNumber(bEdit, value))
        return;
    QColor color = getColor();
    color.setRgb(color.red(), color.green(), value);
    panel->setPaletteBackgroundColor(color);
}
