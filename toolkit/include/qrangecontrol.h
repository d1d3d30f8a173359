// A value in a range, with steps.
#ifndef QRANGECONTROL_H
#define QRANGECONTROL_H

#include <qglobal.h>

//! Base of scroll bars: keeps a value within its limits.
class Q_EXPORT QRangeControl
{
public:
    QRangeControl();
    QRangeControl(int minValue, int maxValue, int lineStep, int pageStep, int value);
    virtual ~QRangeControl();

    int value() const { return val; }
    void setValue(int value);
    void addPage();
    void subtractPage();
    void addLine();
    void subtractLine();

    int minValue() const { return minVal; }
    int maxValue() const { return maxVal; }
    void setRange(int minValue, int maxValue);
    void setMinValue(int minValue);
    void setMaxValue(int maxValue);

    int lineStep() const { return line; }
    int pageStep() const { return page; }
    void setSteps(int lineStep, int pageStep);

    //! The value of the range that is nearest.
    int bound(int value) const;

protected:
    //! The place of a value on a scale of `space` pixels, and back.
    int positionFromValue(int value, int space) const;
    int valueFromPosition(int pos, int space) const;
    //! Without valueChange().
    void directSetValue(int value);
    int prevValue() const { return prevVal; }

    virtual void valueChange();
    virtual void rangeChange();
    virtual void stepChange();

private:
    int minVal;
    int maxVal;
    int line;
    int page;
    int val;
    int prevVal;

    QRangeControl(const QRangeControl&);
    QRangeControl& operator=(const QRangeControl&);
};

#endif
