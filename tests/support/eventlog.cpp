// A widget that writes down the events that reach it.
#include "eventlog.h"

#include <sstream>

namespace
{

std::string sizeText(const QSize& size)
{
    std::ostringstream text;
    text << size.width() << 'x' << size.height();
    return text.str();
}

std::string pointText(const QPoint& point)
{
    std::ostringstream text;
    text << point.x() << ',' << point.y();
    return text.str();
}

std::string paintText(const QPaintEvent* event)
{
    std::string text = event->erased() ? "Paint erased" : "Paint unerased";
    const QMemArray<QRect> boxes = event->region().rects();
    for (unsigned i = 0; i < boxes.size(); ++i)
        text += ' ' + pointText(boxes[i].topLeft()) + ' ' + sizeText(boxes[i].size());
    return text;
}

// Empty for events of no interest.
std::string eventText(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move: {
        const QMoveEvent* move = static_cast<QMoveEvent*>(event);
        return "Move " + pointText(move->pos()) + " from " + pointText(move->oldPos());
    }
    case QEvent::Resize: {
        const QResizeEvent* resize = static_cast<QResizeEvent*>(event);
        return "Resize " + sizeText(resize->size()) + " from " + sizeText(resize->oldSize());
    }
    case QEvent::Show:
        return "Show";
    case QEvent::Hide:
        return "Hide";
    case QEvent::ShowToParent:
        return "ShowToParent";
    case QEvent::HideToParent:
        return "HideToParent";
    case QEvent::Close:
        return "Close";
    case QEvent::Reparent:
        return "Reparent";
    case QEvent::CaptionChange:
        return "CaptionChange";
    case QEvent::Paint:
        return paintText(static_cast<QPaintEvent*>(event));
    default:
        return std::string();
    }
}

} // namespace

std::string EventLog::take()
{
    std::string all;
    for (const std::string& line : m_lines)
        all += (all.empty() ? "" : "; ") + line;
    m_lines.clear();
    return all;
}

bool LoggedWidget::event(QEvent* event)
{
    const std::string text = eventText(event);
    if (!text.empty() && (logsPaint || event->type() != QEvent::Paint))
        m_log->write(std::string(name()) + ' ' + text);
    return QWidget::event(event);
}
