// Judges of typed text.
#ifndef QVALIDATOR_H
#define QVALIDATOR_H

#include <qobject.h>

//! Tells whether a text may be typed, and whether it is complete.
class Q_EXPORT QValidator : public QObject
{
    Q_OBJECT

public:
    QValidator(QObject* parent, const char* name = 0);
    ~QValidator();

    //! Intermediate: not good yet, but more typing may make it so.
    enum State { Invalid, Intermediate, Valid = Intermediate, Acceptable };

    //! May also change the text and the cursor's place.
    virtual State validate(QString& input, int& pos) const = 0;
    //! Makes an acceptable text of an intermediate one, if it can.
    virtual void fixup(QString& input) const;

private:
    QValidator(const QValidator&);
    QValidator& operator=(const QValidator&);
};

//! Accepts whole numbers of a range.
class Q_EXPORT QIntValidator : public QValidator
{
    Q_OBJECT

public:
    QIntValidator(QObject* parent, const char* name = 0);
    QIntValidator(int bottom, int top, QObject* parent, const char* name = 0);
    ~QIntValidator();

    State validate(QString& input, int& pos) const;

    void setBottom(int bottom);
    void setTop(int top);
    virtual void setRange(int bottom, int top);
    int bottom() const { return b; }
    int top() const { return t; }

private:
    int b;
    int t;

    QIntValidator(const QIntValidator&);
    QIntValidator& operator=(const QIntValidator&);
};

//! Accepts numbers of a range with a limited number of digits after the point.
class Q_EXPORT QDoubleValidator : public QValidator
{
    Q_OBJECT

public:
    QDoubleValidator(QObject* parent, const char* name = 0);
    QDoubleValidator(double bottom, double top, int decimals, QObject* parent, const char* name = 0);
    ~QDoubleValidator();

    State validate(QString& input, int& pos) const;

    virtual void setRange(double bottom, double top, int decimals = 0);
    void setBottom(double bottom);
    void setTop(double top);
    void setDecimals(int decimals);
    double bottom() const { return b; }
    double top() const { return t; }
    int decimals() const { return d; }

private:
    double b;
    double t;
    int d;

    QDoubleValidator(const QDoubleValidator&);
    QDoubleValidator& operator=(const QDoubleValidator&);
};

#endif
