// Choosing a colour.
#ifndef QCOLORDIALOG_H
#define QCOLORDIALOG_H

#include <qcolor.h>
#include <qdialog.h>

namespace zeltk
{
class ColorPanel;
}

//! Asks for a colour.
class Q_EXPORT QColorDialog : public QDialog
{
    Q_OBJECT

public:
    //! An invalid colour if the user cancels.
    static QColor getColor(const QColor& initial = Qt::white, QWidget* parent = 0, const char* name = 0);
    //! The initial colour if the user cancels; `ok` tells.
    static QRgb getRgba(QRgb initial, bool* ok = 0, QWidget* parent = 0, const char* name = 0);

    static int customCount();
    static QRgb customColor(int index);
    static void setCustomColor(int index, QRgb color);
    static void setStandardColor(int index, QRgb color);

private:
    QColorDialog(QWidget* parent = 0, const char* name = 0, bool modal = false);
    ~QColorDialog();
    void setColor(const QColor& color);
    QColor color() const;
    void setSelectedAlpha(int alpha);
    int selectedAlpha() const;
    bool selectColor(const QColor& color);

    zeltk::ColorPanel* d;

    QColorDialog(const QColorDialog&);
    QColorDialog& operator=(const QColorDialog&);
};

#endif
