// A colour as numbers to type, with a look at it.
#ifndef ZELTK_COLORFIELDS_H
#define ZELTK_COLORFIELDS_H

#include <qcolor.h>
#include <qframe.h>

#include <functional>

class QLineEdit;

// A sunken field of one colour.
class QColorShowLabel : public QFrame
{
    Q_OBJECT

public:
    explicit QColorShowLabel(QWidget* parent);
    void setColor(const QColor& color);

protected:
    void drawContents(QPainter* p) override;

private:
    QColor shown;
};

class QColorShower : public QWidget
{
    Q_OBJECT

public:
    explicit QColorShower(QWidget* parent);

    std::function<void()> onTyped;
    int hue() const { return h; }
    int saturation() const { return s; }
    int value() const { return v; }
    QColor color() const { return current; }
    void setColor(const QColor& color);
    void setHsv(int hue, int saturation, int value);
    int alpha() const;
    void showAlpha(int alpha);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private slots:
    void hsvTyped();
    void rgbTyped();

private:
    enum Field { Hue, Saturation, Value, Red, Green, Blue, Alpha, FieldCount };
    int number(Field field) const;
    void write(Field field, int number);
    void writeHsv();
    void writeRgb();
    int likedEditWidth() const;
    int labelWidth(int first) const;
    QSize sizeFor(int editWidth) const;
    void place();

    QColorShowLabel* sample;
    QLineEdit* edits[FieldCount];
    QWidget* labels[FieldCount];
    int h = 0, s = 0, v = 0;
    QColor current;
    bool writing = false; // it is not the user who changes a field
    bool withAlpha = false;
};

#endif
