// The inside of the colour dialog.
#ifndef ZELTK_COLORPANEL_H
#define ZELTK_COLORPANEL_H

#include "dialogs/colorfields.h"
#include "dialogs/colorgrid.h"
#include "dialogs/colorpickers.h"

#include <qcolordialog.h>

class QLabel;
class QPushButton;

namespace zeltk
{

std::vector<QRgb>& standardColors();
std::vector<QRgb>& customColors();

class ColorPanel : public QObject
{
    Q_OBJECT

public:
    explicit ColorPanel(QColorDialog* dialog);

    QColor color() const { return fields->color(); }
    void setColor(const QColor& color);
    // Marks the well of that colour; false if there is none.
    bool select(const QColor& color);
    int alpha() const;
    void showAlpha(int alpha);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void addCustom();

private:
    void showColor();
    QSize sizeAround(const QSize& fieldsSize) const;
    void fitDialog();
    void place();

    QColorDialog* dialog;
    QWellArray *standard, *custom;
    QLabel *standardLabel, *customLabel;
    QPushButton *define, *ok, *cancel, *add;
    QColorPicker* huePicker;
    QColorLuminancePicker* valuePicker;
    QColorShower* fields;
    int nextCustom = 0;
    bool withAlpha = false;
};

} // namespace zeltk

#endif
