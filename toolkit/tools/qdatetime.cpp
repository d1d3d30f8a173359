// QTime.
#include <qdatetime.h>

#include <sys/time.h>

#include <ctime>

namespace
{

constexpr int dayLength = 24 * 60 * 60 * 1000;
constexpr int invalid = dayLength; // what an impossible time is stored as

int wrapped(Q_LLONG msecs)
{
    const Q_LLONG rest = msecs % dayLength;
    return static_cast<int>(rest < 0 ? rest + dayLength : rest);
}

} // namespace

QTime::QTime(int hour, int minute, int second, int msec)
{
    setHMS(hour, minute, second, msec);
}

bool QTime::isValid() const
{
    return ds >= 0 && ds < dayLength;
}

bool QTime::isValid(int hour, int minute, int second, int msec)
{
    return hour >= 0 && hour < 24 && minute >= 0 && minute < 60 && second >= 0 && second < 60 && msec >= 0 &&
           msec < 1000;
}

int QTime::hour() const
{
    return ds / (60 * 60 * 1000);
}

int QTime::minute() const
{
    return ds / (60 * 1000) % 60;
}

int QTime::second() const
{
    return ds / 1000 % 60;
}

int QTime::msec() const
{
    return ds % 1000;
}

QString QTime::toString(Qt::DateFormat format) const
{
    if (!isValid())
        return QString::null;
    if (format == Qt::LocalDate) {
        tm local = {};
        local.tm_hour = hour();
        local.tm_min = minute();
        local.tm_sec = second();
        char formatted[80];
        return QString::fromLocal8Bit(std::strftime(formatted, sizeof formatted, "%X", &local) ? formatted
                                                                                               : "");
    }
    QString text;
    text.sprintf("%.2d:%.2d:%.2d", hour(), minute(), second());
    return text;
}

bool QTime::setHMS(int hour, int minute, int second, int msec)
{
    if (!isValid(hour, minute, second, msec)) {
        qWarning("QTime::setHMS Invalid time %02d:%02d:%02d.%03d", hour, minute, second, msec);
        ds = invalid;
        return false;
    }
    ds = ((hour * 60 + minute) * 60 + second) * 1000 + msec;
    return true;
}

QTime QTime::addSecs(int seconds) const
{
    QTime sum;
    sum.ds = wrapped(ds + seconds * Q_LLONG(1000));
    return sum;
}

int QTime::secsTo(const QTime& other) const
{
    return (other.ds - ds) / 1000;
}

QTime QTime::addMSecs(int msecs) const
{
    QTime sum;
    sum.ds = wrapped(Q_LLONG(ds) + msecs);
    return sum;
}

int QTime::msecsTo(const QTime& other) const
{
    return other.ds - ds;
}

QTime QTime::currentTime()
{
    timeval now;
    gettimeofday(&now, nullptr);
    tm local;
    localtime_r(&now.tv_sec, &local);
    // A leap second counts as the one before it.
    return QTime(local.tm_hour, local.tm_min, local.tm_sec < 60 ? local.tm_sec : 59,
                 static_cast<int>(now.tv_usec / 1000));
}

void QTime::start()
{
    *this = currentTime();
}

int QTime::restart()
{
    const int passed = elapsed();
    start();
    return passed;
}

int QTime::elapsed() const
{
    return wrapped(Q_LLONG(msecsTo(currentTime())));
}
