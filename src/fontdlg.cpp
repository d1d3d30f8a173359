#include "fontdlg.h"

#include <qcheckbox.h>
#include <qcombobox.h>
#include <qfont.h>
#include <qfontmetrics.h>
#include <qguardedptr.h>
#include <qlabel.h>

#include "dialogparts.h"
#include "textnumber.h"

const char* Families[] = {"Charter",
                          "Clean",
                          "Courier",
                          "Fixed",
                          "Gothic",
                          "Helvetica",
                          "Lucida",
                          "Lucidabright",
                          "Lucidatypewriter",
                          "Mincho",
                          "New century schoolbook",
                          "Symbol",
                          "Terminal",
                          "Times",
                          "Utopia",
                          0};

const char* Sizes[] = {"8", "10", "12", "14", "18", "24", "36", "48", "72", "96", 0};

const char* Weights[] = {"Light", "Normal", "DemiBold", "Bold", "Black", 0};

namespace
{

const char sourceFile[] = "fontdlg.cpp";

// A caption and the combo box behind it, which has room for the widest text. The lines are those of their
// failure reports.
struct List {
    const char* caption;
    const char* text;
    int captionLine;
    const char* edit;
    bool editable;
    const char* widest;
    const char** entries;
    bool oneByOne; // inserted, else all at once
    const char* slot;
    int editLine;
};

enum { listCount = 3 };

const List lists[listCount] = {
    {"FamilyLabel", "Family", 114, "FamilyEdit", true, "New century schoolbook", Families, true,
     SLOT(familyActivated(int)), 119},
    {"SizeLabel", "Size", 128, "SizeEdit", true, "1000", Sizes, false, SLOT(sizeActivated(int)), 133},
    {"WeightLabel", "Weight", 140, "WeightEdit", false, "DemiBold", Weights, false,
     SLOT(weightActivated(int)), 145},
};

// A check box. The line is that of its failure report.
struct Style {
    const char* edit;
    const char* text;
    const char* slot;
    int line;
};

enum { styleCount = 3 };

const Style styles[styleCount] = {
    {"ItalicEdit", "Italic", SLOT(italicClicked()), 152},
    {"UnderlineEdit", "Underline", SLOT(underlineClicked()), 158},
    {"StrikeOutEdit", "StrikeOut", SLOT(strikeoutClicked()), 164},
};

struct Weight {
    const char* name;
    int weight;
};

enum { weightCount = 5 };

// In the order of the weight box.
const Weight weights[weightCount] = {
    {"Light", QFont::Light}, {"Normal", QFont::Normal}, {"DemiBold", QFont::DemiBold},
    {"Bold", QFont::Bold},   {"Black", QFont::Black},
};

// The place of a weight in the weight box; of any other number that of "Light".
int weightIndex(int weight)
{
    for (int i = 0; i < weightCount; ++i)
        if (weights[i].weight == weight)
            return i;
    return 0;
}

// The weight with a name, or `otherwise`.
int namedWeight(const QString& name, int otherwise)
{
    for (int i = 0; i < weightCount; ++i)
        if (name == weights[i].name)
            return weights[i].weight;
    return otherwise;
}

// The smallest int stays as it is.
int withoutSign(int number)
{
    return number < 0 ? (int)(0u - (unsigned int)number) : number;
}

int shownSize(int size)
{
    return size < 1 ? 8 : size;
}

} // namespace

ZelFontDlg::ZelFontDlg(QWidget* parent, const char* name, bool modal, WFlags f)
    : QDialog(parent, name, modal, f)
{
    setFixedSize(500, 200);
    setCaption("Choose font");
    addOkAndCancel(this, buttonsTop(this), sourceFile, 102, 108);
    addLists();
    addStyles();
    addPanel();
}

ZelFontDlg::~ZelFontDlg() {}

// One line of captions and combo boxes, which end at the same height.
void ZelFontDlg::addLists()
{
    QComboBox** const edits[listCount] = {&familyEdit, &sizeEdit, &weightEdit};
    const QFontMetrics metrics = fontMetrics();
    int x = dialogMargin;
    for (int i = 0; i < listCount; ++i) {
        QLabel* const caption = new QLabel(lists[i].text, this, lists[i].caption, 0);
        checkCreation(caption, ZELKIT_LABEL_FAILED, sourceFile, lists[i].captionLine);
        caption->setGeometry(x, dialogMargin, metrics.width(lists[i].text), metrics.height());
        x += caption->width() + dialogGap;

        QComboBox*& edit = *edits[i];
        edit = new QComboBox(lists[i].editable, this, lists[i].edit);
        checkCreation(edit, ZELKIT_COMBO_BOX_FAILED, sourceFile, lists[i].editLine);
        edit->setGeometry(x, dialogMargin - 8, metrics.width(lists[i].widest) + 32, metrics.height() + 8);
        if (lists[i].oneByOne) {
            for (const char** entry = lists[i].entries; *entry; ++entry)
                edit->insertItem(*entry);
        } else {
            edit->insertStrList(lists[i].entries);
        }
        connect(edit, SIGNAL(activated(int)), lists[i].slot);
        x += edit->width() + dialogGap;
    }
}

// One column of check boxes, which keep the size that the toolkit gives them.
void ZelFontDlg::addStyles()
{
    QCheckBox** const edits[styleCount] = {&italicEdit, &underlineEdit, &strikeOutEdit};
    int y = familyEdit->y() + familyEdit->height() + dialogGap;
    for (int i = 0; i < styleCount; ++i) {
        QCheckBox*& edit = *edits[i];
        edit = new QCheckBox(styles[i].text, this, styles[i].edit);
        checkCreation(edit, ZELKIT_CHECK_BOX_FAILED, sourceFile, styles[i].line);
        edit->move(dialogMargin, y);
        connect(edit, SIGNAL(clicked()), styles[i].slot);
        y += edit->height() + dialogGap;
    }
}

void ZelFontDlg::addPanel()
{
    panel = new QLabel("This is a choosed font", this, "Panel", 0);
    checkCreation(panel, ZELKIT_LABEL_FAILED, sourceFile, 170);
    const int left = italicEdit->x() + italicEdit->width() + dialogGap;
    const int top = italicEdit->y();
    panel->setGeometry(left, top, width() - dialogMargin - left,
                       strikeOutEdit->y() + strikeOutEdit->height() - top);
    panel->setFrameStyle(sunkenPanel);
    panel->setAlignment(AlignCenter);
}

void ZelFontDlg::setFontParameters(const char* family, int size, int weight, bool italic, bool underline,
                                   bool strikeOut)
{
    // The text may be the one that getFontFamily() returned, which ends with the change of the control.
    const QString familyName = family;
    const QGuardedPtr<QWidget> alive(this); // who hears of a change may delete the dialog
    familyEdit->setEditText(familyName);
    if (alive)
        setFontSize(size);
    if (alive)
        setFontWeight(weight);
    if (alive)
        setFontItalic(italic);
    if (alive)
        setFontUnderline(underline);
    if (alive)
        setFontStrikeOut(strikeOut);
    if (!alive)
        return;

    QFont font(familyName, shownSize(size), withoutSign(weight), italic);
    font.setUnderline(underline);
    font.setStrikeOut(strikeOut);
    panel->setFont(font);
}

void ZelFontDlg::setFontFamily(const char* family)
{
    familyEdit->setEditText(family);
}

void ZelFontDlg::setFontSize(int size)
{
    sizeEdit->setEditText(QString::number(shownSize(size)));
}

void ZelFontDlg::setFontWeight(int weight)
{
    weightEdit->setCurrentItem(weightIndex(withoutSign(weight)));
}

void ZelFontDlg::setFontItalic(bool on)
{
    italicEdit->setChecked(on);
}

void ZelFontDlg::setFontUnderline(bool on)
{
    underlineEdit->setChecked(on);
}

void ZelFontDlg::setFontStrikeOut(bool on)
{
    strikeOutEdit->setChecked(on);
}

const char* ZelFontDlg::getFontFamily()
{
    // The combo box and its copy share the text; only an empty one may be the copy's own.
    const QString family = familyEdit->currentText();
    return family.isEmpty() ? "" : family.ascii();
}

int ZelFontDlg::getFontSize()
{
    return leadingNumber(sizeEdit->currentText());
}

int ZelFontDlg::getFontWeight()
{
    return namedWeight(weightEdit->currentText(), QFont::Light);
}

bool ZelFontDlg::beFontItalic()
{
    return italicEdit->isChecked();
}

bool ZelFontDlg::beFontUnderline()
{
    return underlineEdit->isChecked();
}

bool ZelFontDlg::beFontStrikeOut()
{
    return strikeOutEdit->isChecked();
}

void ZelFontDlg::familyActivated(int index)
{
    QFont font = panel->font();
    font.setFamily(familyEdit->text(index));
    panel->setFont(font);
}

void ZelFontDlg::sizeActivated(int index)
{
    QFont font = panel->font();
    font.setPointSize(withoutSign(leadingNumber(sizeEdit->text(index))));
    panel->setFont(font);
}

void ZelFontDlg::weightActivated(int index)
{
    QFont font = panel->font();
    const int weight = namedWeight(weightEdit->text(index), 0);
    if (weight)
        font.setWeight(weight);
    panel->setFont(font);
}

void ZelFontDlg::italicClicked()
{
    QFont font = panel->font();
    font.setItalic(italicEdit->isChecked());
    panel->setFont(font);
}

void ZelFontDlg::underlineClicked()
{
    QFont font = panel->font();
    font.setUnderline(underlineEdit->isChecked());
    panel->setFont(font);
}

void ZelFontDlg::strikeoutClicked()
{
    QFont font = panel->font();
    font.setStrikeOut(strikeOutEdit->isChecked());
    panel->setFont(font);
}
