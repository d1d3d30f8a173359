// The inside of the colour dialog.
#include "dialogs/colorpanel.h"

#include <qevent.h>
#include <qlabel.h>
#include <qpushbutton.h>

#include <algorithm>

namespace zeltk
{

namespace
{

constexpr int margin = 12;
constexpr int distance = 6;
constexpr int rightColumn = 242;
constexpr int standardRows = 6, customRows = 2, columns = 8;

std::vector<QRgb> makeStandardColors()
{
    std::vector<QRgb> colors;
    for (int green = 0; green <= 255; green += 85) {
        for (int red = 0; red <= 255; red += 85) {
            for (int blue : {0, 127, 255})
                colors.push_back(qRgb(red, green, blue));
        }
    }
    return colors;
}

int find(const std::vector<QRgb>& colors, QRgb color)
{
    const auto place = std::find(colors.begin(), colors.end(), color);
    return place == colors.end() ? -1 : static_cast<int>(place - colors.begin());
}

} // namespace

std::vector<QRgb>& standardColors()
{
    static std::vector<QRgb> colors = makeStandardColors();
    return colors;
}

std::vector<QRgb>& customColors()
{
    static std::vector<QRgb> colors(customRows * columns, qRgb(255, 255, 255));
    return colors;
}

ColorPanel::ColorPanel(QColorDialog* d) : QObject(d), dialog(d)
{
    standard = new QWellArray(standardRows, columns, &standardColors(), dialog);
    standardLabel = new QLabel(standard, QColorDialog::tr("&Basic colors"), dialog, "qt_basiccolors_lbl");
    custom = new QWellArray(customRows, columns, &customColors(), dialog);
    customLabel = new QLabel(custom, QColorDialog::tr("&Custom colors"), dialog, "qt_custcolors_lbl");
    define = new QPushButton(QColorDialog::tr("&Define Custom Colors >>"), dialog, "qt_def_custcolors_lbl");
    define->setEnabled(false); // all is shown already
    huePicker = new QColorPicker(dialog);
    huePicker->setName("qt_colorpicker");
    valuePicker = new QColorLuminancePicker(dialog);
    valuePicker->setName("qt_luminance_picker");
    fields = new QColorShower(dialog);
    ok = new QPushButton(QColorDialog::tr("OK"), dialog, "qt_ok_btn");
    ok->setDefault(true);
    cancel = new QPushButton(QColorDialog::tr("Cancel"), dialog, "qt_cancel_btn");
    add = new QPushButton(QColorDialog::tr("&Add to Custom Colors"), dialog, "qt_add_btn");
    connect(ok, SIGNAL(clicked()), dialog, SLOT(accept()));
    connect(cancel, SIGNAL(clicked()), dialog, SLOT(reject()));
    connect(add, SIGNAL(clicked()), this, SLOT(addCustom()));

    standard->onChosen = [this](int index) {
        custom->choose(-1);
        setColor(QColor(standardColors()[static_cast<size_t>(index)]));
    };
    custom->onChosen = [this](int index) {
        standard->choose(-1);
        nextCustom = index;
        setColor(QColor(customColors()[static_cast<size_t>(index)]));
    };
    huePicker->onPicked = [this](int hue, int saturation) {
        fields->setHsv(hue, saturation, fields->value());
        showColor();
    };
    valuePicker->onPicked = [this](int value) {
        fields->setHsv(fields->hue(), fields->saturation(), value);
        showColor();
    };
    fields->onTyped = [this] { showColor(); };
    dialog->installEventFilter(this);
    fitDialog();
}

// The right column decides how large the dialog is.
QSize ColorPanel::sizeAround(const QSize& fieldsSize) const
{
    return QSize(rightColumn + fieldsSize.width() + margin, margin + valuePicker->sizeHint().height() +
                                                                distance + fieldsSize.height() + distance +
                                                                ok->sizeHint().height() + margin);
}

void ColorPanel::fitDialog()
{
    dialog->setMinimumSize(sizeAround(fields->minimumSizeHint()));
    dialog->resize(sizeAround(fields->sizeHint()));
    place();
}

// The custom colours and what is below them stand at the foot of the dialog; the fields take what room is
// left.
void ColorPanel::place()
{
    const int gridWidth = standard->sizeHint().width();
    const int line = standardLabel->sizeHint().height();
    const int buttonHeight = ok->sizeHint().height();
    const int foot = dialog->height() - margin - buttonHeight;
    const int fieldsWidth = dialog->width() - margin - rightColumn;
    standardLabel->setGeometry(margin, margin, gridWidth, line);
    standard->setGeometry(QRect(QPoint(margin, margin + line + distance), standard->sizeHint()));
    valuePicker->setGeometry(QRect(QPoint(460, margin), valuePicker->sizeHint()));
    huePicker->setGeometry(QRect(QPoint(rightColumn + 5, margin + 3), huePicker->sizeHint()));
    const int fieldsTop = margin + valuePicker->height() + distance;
    fields->setGeometry(rightColumn, fieldsTop, fieldsWidth, foot - distance - fieldsTop);
    int y = foot - distance - buttonHeight;
    define->setGeometry(margin, y, gridWidth, buttonHeight);
    y -= distance + custom->sizeHint().height();
    custom->setGeometry(QRect(QPoint(margin, y), custom->sizeHint()));
    customLabel->setGeometry(margin, y - distance - line, gridWidth, line);
    ok->setGeometry(margin, foot, ok->sizeHint().width(), buttonHeight);
    cancel->setGeometry(ok->x() + ok->width() + distance, foot, cancel->sizeHint().width(), buttonHeight);
    add->setGeometry(rightColumn, foot, fieldsWidth, buttonHeight);
}

bool ColorPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        place();
    return QObject::eventFilter(watched, event);
}

void ColorPanel::setColor(const QColor& color)
{
    fields->setColor(color);
    showColor();
}

void ColorPanel::showColor()
{
    huePicker->show(fields->hue(), fields->saturation());
    valuePicker->show(fields->hue(), fields->saturation(), fields->value());
}

bool ColorPanel::select(const QColor& color)
{
    standard->choose(find(standardColors(), color.rgb()));
    custom->choose(standard->chosen() < 0 ? find(customColors(), color.rgb()) : -1);
    return standard->chosen() >= 0 || custom->chosen() >= 0;
}

void ColorPanel::addCustom()
{
    customColors()[static_cast<size_t>(nextCustom)] = color().rgb();
    nextCustom = (nextCustom + 1) % static_cast<int>(customColors().size());
    custom->updateContents();
}

int ColorPanel::alpha() const
{
    return withAlpha ? fields->alpha() : 255;
}

void ColorPanel::showAlpha(int alpha)
{
    withAlpha = true;
    fields->showAlpha(alpha);
    fitDialog();
}

} // namespace zeltk
