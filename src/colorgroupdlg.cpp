#include "colorgroupdlg.h"

#include <qevent.h>
#include <qfontmetrics.h>
#include <qguardedptr.h>
#include <qlabel.h>

#include "colordlg.h"
#include "dialogparts.h"
#include "zelframe.h"

namespace
{

const char sourceFile[] = "colorgroupdlg.cpp";

// A caption and its swatch. The lines are those of their failure reports.
struct Row {
    const char* caption;
    const char* text;
    int captionLine;
    const char* swatch;
    int swatchLine;
    QColorGroup::ColorRole initialRole; // that the swatch shows of the dialog's own palette
    QColorGroup::ColorRole loadedRole;  // that setColorGroup() takes
    const char* slot;
};

enum { rowsPerColumn = 5, rowCount = 2 * rowsPerColumn };

const Row rows[rowCount] = {
    {"ForegroundColorlabel", "Foreground", 56, "ForegroundColorEdit", 76, QColorGroup::Foreground,
     QColorGroup::Text, SLOT(foregroundColorClick(QMouseEvent*))},
    {"BackgroundColorlabel", "Background", 61, "BackgroundColorEdit", 88, QColorGroup::Background,
     QColorGroup::Background, SLOT(backgroundColorClick(QMouseEvent*))},
    {"LightColorlabel", "Light", 66, "LightColorEdit", 100, QColorGroup::Light, QColorGroup::Light,
     SLOT(lightColorClick(QMouseEvent*))},
    {"DarkColorlabel", "Dark", 71, "DarkColorEdit", 112, QColorGroup::Dark, QColorGroup::Dark,
     SLOT(darkColorClick(QMouseEvent*))},
    {"MidColorlabel", "Mid", 127, "MidColorEdit", 169, QColorGroup::Mid, QColorGroup::Mid,
     SLOT(midColorClick(QMouseEvent*))},
    {"TextColorlabel", "Text", 136, "TextColorEdit", 185, QColorGroup::Text, QColorGroup::Text,
     SLOT(textColorClick(QMouseEvent*))},
    {"BaseColorlabel", "Base", 145, "BaseColorEdit", 201, QColorGroup::Midlight, QColorGroup::Base,
     SLOT(baseColorClick(QMouseEvent*))},
    {"ShadowColorlabel", "Shadow", 152, "ShadowColorEdit", 215, QColorGroup::Shadow, QColorGroup::Shadow,
     SLOT(shadowColorClick(QMouseEvent*))},
    {"HighlightColorlabel", "Highlight", 157, "HighlightColorEdit", 227, QColorGroup::Highlight,
     QColorGroup::Highlight, SLOT(highlightColorClick(QMouseEvent*))},
    // The swatch shares the name of the shadow's.
    {"HighlightedTextColorlabel", "HighlightedText", 162, "ShadowColorEdit", 239,
     QColorGroup::HighlightedText, QColorGroup::HighlightedText,
     SLOT(highlightedTextColorClick(QMouseEvent*))},
};

QRect captionPlace(const QFontMetrics& metrics, int row)
{
    const int height = metrics.height() + 8;
    const int y = dialogMargin + row % rowsPerColumn * (height + dialogGap);
    const int leftWidth = QMAX(100, metrics.width("Foreground"));
    if (row < rowsPerColumn)
        return QRect(dialogMargin, y, leftWidth, height);
    const int rightWidth = QMAX(100, metrics.width("Text"));
    return QRect(dialogMargin + leftWidth + dialogGap + height + 24, y, rightWidth, height);
}

QRect swatchPlace(const QFontMetrics& metrics, int row)
{
    const QRect caption = captionPlace(metrics, row);
    return QRect(caption.x() + caption.width() + dialogGap, caption.y(), caption.height(), caption.height());
}

QBrush brushOf(const ZelFrame* swatch)
{
    return QBrush(swatch->paletteBackgroundColor(), Qt::SolidPattern);
}

} // namespace

ZelColorGroupDlg::ZelColorGroupDlg(QWidget* parent, const char* name, bool modal, WFlags f)
    : QDialog(parent, name, modal, f), colorGroup(palette().active())
{
    setCaption("A colors palette");
    // "Mid" is made with the right column.
    addCaptions(0, 3);
    addSwatches(0, 3);
    addCaptions(4, rowCount - 1);
    addSwatches(4, rowCount - 1);

    const QRect corner = highlightedTextColorEdit->geometry();
    const int wholeWidth = corner.x() + corner.width() + dialogGap;
    resize(wholeWidth, 100);
    const QRect ok = addOkAndCancel(this, corner.y() + corner.height() + 16, sourceFile, 254, 265);
    setFixedSize(wholeWidth, ok.y() + ok.height() + dialogGap);
}

ZelColorGroupDlg::~ZelColorGroupDlg() {}

// The swatches' members in the order of the rows.
ZelFrame*& ZelColorGroupDlg::swatch(int row)
{
    static ZelFrame* ZelColorGroupDlg::*const swatches[rowCount] = {
        &ZelColorGroupDlg::foregroundColorEdit, &ZelColorGroupDlg::backgroundColorEdit,
        &ZelColorGroupDlg::lightColorEdit,      &ZelColorGroupDlg::darkColorEdit,
        &ZelColorGroupDlg::midColorEdit,        &ZelColorGroupDlg::textColorEdit,
        &ZelColorGroupDlg::baseColorEdit,       &ZelColorGroupDlg::shadowColorEdit,
        &ZelColorGroupDlg::highlightColorEdit,  &ZelColorGroupDlg::highlightedTextColorEdit};
    return this->*swatches[row];
}

void ZelColorGroupDlg::addCaptions(int first, int last)
{
    for (int i = first; i <= last; ++i) {
        QLabel* const caption = new QLabel(rows[i].text, this, rows[i].caption, 0);
        checkCreation(caption, ZELKIT_LABEL_FAILED, sourceFile, rows[i].captionLine);
        caption->setGeometry(captionPlace(fontMetrics(), i));
    }
}

void ZelColorGroupDlg::addSwatches(int first, int last)
{
    for (int i = first; i <= last; ++i) {
        ZelFrame*& frame = swatch(i);
        frame = new ZelFrame(this, rows[i].swatch, 0);
        checkCreation(frame, ZELKIT_FRAME_FAILED, sourceFile, rows[i].swatchLine);
        frame->setGeometry(swatchPlace(fontMetrics(), i));
        frame->setPaletteBackgroundColor(colorGroup.color(rows[i].initialRole));
        frame->setFrameStyle(sunkenPanel);
        connect(frame, SIGNAL(mousePress(QMouseEvent*)), rows[i].slot);
    }
}

void ZelColorGroupDlg::setColorGroup(const QColorGroup& cg)
{
    for (int i = 0; i < rowCount; ++i)
        swatch(i)->setPaletteBackgroundColor(cg.color(rows[i].loadedRole));
}

const QColorGroup& ZelColorGroupDlg::getColorGroup()
{
    const QBrush background = brushOf(backgroundColorEdit);
    const QBrush text = brushOf(textColorEdit);
    colorGroup =
        QColorGroup(brushOf(foregroundColorEdit), background, brushOf(lightColorEdit), brushOf(darkColorEdit),
                    brushOf(midColorEdit), text, text, brushOf(baseColorEdit), background);
    colorGroup.setColor(QColorGroup::Shadow, shadowColorEdit->paletteBackgroundColor());
    colorGroup.setColor(QColorGroup::Highlight, highlightColorEdit->paletteBackgroundColor());
    colorGroup.setColor(QColorGroup::HighlightedText, highlightedTextColorEdit->paletteBackgroundColor());
    return colorGroup;
}

// The left button on a swatch lets the user choose its colour. A coupled swatch takes the same one. If this
// dialog is destroyed meanwhile, so is the chooser.
void ZelColorGroupDlg::chooseColor(const QMouseEvent* event, ZelFrame* swatch, ZelFrame* coupled)
{
    if (event->button() != LeftButton)
        return;
    const QGuardedPtr<ZelColorDlg> chooser = new ZelColorDlg(swatch->paletteBackgroundColor(), this, "dlg");
    if (chooser && chooser->modal()) {
        swatch->setPaletteBackgroundColor(chooser->getColor());
        if (coupled)
            coupled->setPaletteBackgroundColor(chooser->getColor());
    }
    delete chooser;
}

void ZelColorGroupDlg::foregroundColorClick(QMouseEvent* event)
{
    chooseColor(event, foregroundColorEdit, textColorEdit);
}

void ZelColorGroupDlg::backgroundColorClick(QMouseEvent* event)
{
    chooseColor(event, backgroundColorEdit);
}

void ZelColorGroupDlg::lightColorClick(QMouseEvent* event)
{
    chooseColor(event, lightColorEdit);
}

void ZelColorGroupDlg::darkColorClick(QMouseEvent* event)
{
    chooseColor(event, darkColorEdit);
}

void ZelColorGroupDlg::midColorClick(QMouseEvent* event)
{
    chooseColor(event, midColorEdit);
}

void ZelColorGroupDlg::textColorClick(QMouseEvent* event)
{
    chooseColor(event, textColorEdit, foregroundColorEdit);
}

void ZelColorGroupDlg::baseColorClick(QMouseEvent* event)
{
    chooseColor(event, baseColorEdit);
}

void ZelColorGroupDlg::shadowColorClick(QMouseEvent* event)
{
    chooseColor(event, shadowColorEdit);
}

void ZelColorGroupDlg::highlightColorClick(QMouseEvent* event)
{
    chooseColor(event, highlightColorEdit);
}

void ZelColorGroupDlg::highlightedTextColorClick(QMouseEvent* event)
{
    chooseColor(event, highlightedTextColorEdit);
}
