// Times of day, and how much time has passed.
#ifndef QDATETIME_H
#define QDATETIME_H

#include <qnamespace.h>
#include <qstring.h>

//! A time of day to the millisecond. A default one is midnight, which counts as null.
class Q_EXPORT QTime
{
public:
    QTime() : ds(0) {}
    QTime(int hour, int minute, int second = 0, int msec = 0);

    bool isNull() const { return ds == 0; }
    bool isValid() const;
    int hour() const;
    int minute() const;
    int second() const;
    int msec() const;
    //! "hh:mm:ss"; LocalDate as the user's locale writes it. Null for an invalid time.
    QString toString(Qt::DateFormat format = Qt::TextDate) const;
    //! False, and the time becomes invalid, when the numbers make no time.
    bool setHMS(int hour, int minute, int second, int msec = 0);

    QTime addSecs(int seconds) const;
    int secsTo(const QTime& other) const;
    QTime addMSecs(int msecs) const;
    int msecsTo(const QTime& other) const;

    bool operator==(const QTime& other) const { return ds == other.ds; }
    bool operator!=(const QTime& other) const { return ds != other.ds; }
    bool operator<(const QTime& other) const { return ds < other.ds; }
    bool operator<=(const QTime& other) const { return ds <= other.ds; }
    bool operator>(const QTime& other) const { return ds > other.ds; }
    bool operator>=(const QTime& other) const { return ds >= other.ds; }

    static QTime currentTime();
    static bool isValid(int hour, int minute, int second, int msec = 0);

    //! A stopwatch: milliseconds since start() or restart(), counted within a day.
    void start();
    int restart();
    int elapsed() const;

private:
    int ds; // milliseconds since midnight
};

#endif
