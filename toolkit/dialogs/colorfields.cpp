// A colour as numbers to type.
#include "dialogs/colorfields.h"

#include <qcolordialog.h>
#include <qfontmetrics.h>
#include <qlabel.h>
#include <qlineedit.h>
#include <qpainter.h>
#include <qvalidator.h>

#include <algorithm>

namespace
{

constexpr int margin = 6;
constexpr int distance = 6;
constexpr int sampleWidth = 60;

const struct {
    const char* name;
    const char* labelName;
    const char* text;
    int maximum;
} descriptions[] = {
    {"qt_hue_edit", "qt_hue_lbl", "Hu&e:", 359},
    {"qt_sat_edit", "qt_sat_lbl", "&Sat:", 255},
    {"qt_val_edit", "qt_val_lbl", "&Val:", 255},
    {"qt_red_edit", "qt_red_lbl", "&Red:", 255},
    {"qt_grn_edit", "qt_grn_lbl", "&Green:", 255},
    {"qt_blue_edit", "qt_blue_lbl", "Bl&ue:", 255},
    {"qt_aplha_edit", "qt_alpha_lbl", "A&lpha channel:", 255},
};

} // namespace

QColorShowLabel::QColorShowLabel(QWidget* parent) : QFrame(parent, "qt_colorshow_lbl")
{
    setFrameStyle(Panel | Sunken);
}

void QColorShowLabel::setColor(const QColor& color)
{
    shown = color;
    update();
}

void QColorShowLabel::drawContents(QPainter* p)
{
    p->fillRect(contentsRect(), shown);
}

QColorShower::QColorShower(QWidget* parent) : QWidget(parent, "qt_colorshower")
{
    sample = new QColorShowLabel(this);
    for (int i = 0; i < FieldCount; ++i) {
        QLineEdit* edit = new QLineEdit(this, descriptions[i].name);
        edit->setMaxLength(3);
        edit->setValidator(new QIntValidator(0, descriptions[i].maximum, edit));
        if (i < Alpha)
            connect(edit, SIGNAL(textChanged(const QString&)), this,
                    i < Red ? SLOT(hsvTyped()) : SLOT(rgbTyped()));
        QLabel* label =
            new QLabel(edit, QColorDialog::tr(descriptions[i].text), this, descriptions[i].labelName);
        label->setAlignment(AlignRight | AlignVCenter);
        edits[i] = edit;
        labels[i] = label;
    }
    edits[Alpha]->hide();
    labels[Alpha]->hide();
}

int QColorShower::likedEditWidth() const
{
    return fontMetrics().width("999") + 4;
}

// The widest of the three labels from `first` on.
int QColorShower::labelWidth(int first) const
{
    int widest = 0;
    for (int i = first; i < first + 3; ++i)
        widest = std::max(widest, labels[i]->sizeHint().width());
    return widest;
}

QSize QColorShower::sizeFor(int editWidth) const
{
    const int columns = labelWidth(Hue) + labelWidth(Red) + 2 * editWidth + 3 * distance;
    const int rows = withAlpha ? 4 : 3;
    return QSize(sampleWidth + distance + columns + 2 * margin,
                 rows * edits[Hue]->sizeHint().height() + 3 * distance + 2 * margin);
}

QSize QColorShower::sizeHint() const
{
    return sizeFor(likedEditWidth());
}

// Both columns of fields may become as narrow as a field ever does.
QSize QColorShower::minimumSizeHint() const
{
    return sizeFor(std::min(likedEditWidth(), edits[Hue]->minimumSizeHint().width()));
}

// Two columns at the right, and the alpha channel below them; its distance from them is kept even while it is
// hidden. The sample takes the room that is left.
void QColorShower::place()
{
    const int missing = std::max(0, sizeHint().width() - width());
    const int editWidth = likedEditWidth() - (missing + 1) / 2;
    const int height = edits[Hue]->sizeHint().height();
    const int sampleRoom = sampleWidth + width() - sizeFor(editWidth).width();
    sample->setGeometry(margin, margin, sampleRoom, this->height() - 2 * margin);
    int x = margin + sampleRoom + distance;
    const int firstLabel = x;
    for (int first : {Hue, Red}) {
        const int labelRoom = labelWidth(first);
        for (int row = 0; row < 3; ++row) {
            const int y = margin + row * (height + distance);
            labels[first + row]->setGeometry(x, y, labelRoom, height);
            edits[first + row]->setGeometry(x + labelRoom + distance, y, editWidth, height);
        }
        x += labelRoom + distance + editWidth + distance;
    }
    if (!withAlpha)
        return;
    const int right = x - distance;
    const int y = margin + 3 * (height + distance);
    labels[Alpha]->setGeometry(firstLabel, y, right - editWidth - distance - firstLabel, height);
    edits[Alpha]->setGeometry(right - editWidth, y, editWidth, height);
}

void QColorShower::resizeEvent(QResizeEvent*)
{
    place();
}

int QColorShower::number(Field field) const
{
    return edits[field]->text().toInt();
}

void QColorShower::write(Field field, int number)
{
    writing = true;
    edits[field]->setText(QString::number(number));
    writing = false;
}

void QColorShower::writeHsv()
{
    write(Hue, h);
    write(Saturation, s);
    write(Value, v);
}

void QColorShower::writeRgb()
{
    write(Red, current.red());
    write(Green, current.green());
    write(Blue, current.blue());
    sample->setColor(current);
}

void QColorShower::setColor(const QColor& color)
{
    current = color;
    current.hsv(&h, &s, &v);
    writeHsv();
    writeRgb();
}

void QColorShower::setHsv(int hue, int saturation, int value)
{
    h = hue;
    s = saturation;
    v = value;
    current.setHsv(h, s, v);
    writeHsv();
    writeRgb();
}

void QColorShower::hsvTyped()
{
    if (writing)
        return;
    h = number(Hue);
    s = number(Saturation);
    v = number(Value);
    current.setHsv(h, s, v);
    writeRgb();
    if (onTyped)
        onTyped();
}

void QColorShower::rgbTyped()
{
    if (writing)
        return;
    current = QColor(number(Red), number(Green), number(Blue));
    current.hsv(&h, &s, &v);
    writeHsv();
    sample->setColor(current);
    if (onTyped)
        onTyped();
}

int QColorShower::alpha() const
{
    return number(Alpha);
}

void QColorShower::showAlpha(int alpha)
{
    withAlpha = true;
    write(Alpha, alpha);
    labels[Alpha]->show();
    edits[Alpha]->show();
}
