#include "witness.h"

#include "insides.h"

#include <qapplication.h>
#include <qframe.h>

#include <algorithm>

Witness::Witness()
{
    qApp->installEventFilter(this);
}

void Witness::meet(QWidget* widget)
{
    m_expected[widget] = Expected();
    if (widget->inherits("ZelLineEditInt"))
        connect(widget, SIGNAL(valueChanged(int)), this, SLOT(numberChanged(int)));
}

void Witness::numberChanged(int number)
{
    const QWidget* field = static_cast<const QWidget*>(sender());
    if (!isInRange(field, number))
        m_outOfRange = std::string(field->name()) + " says that its number is " + std::to_string(number);
}

// Widgets that are disabled are not told of buttons.
bool Witness::eventFilter(QObject* receiver, QEvent* event)
{
    const auto found = m_expected.find(receiver);
    if (found == m_expected.end())
        return false;
    Expected& expected = found->second;
    const QWidget* widget = static_cast<const QWidget*>(receiver);
    switch (event->type()) {
    case QEvent::Enter:
        expected.pointer |= 1;
        break;
    case QEvent::Leave:
        expected.pointer &= ~1u;
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (widget->isEnabled() && static_cast<QMouseEvent*>(event)->button() == LeftButton)
            expected.pointer |= 2;
        break;
    case QEvent::MouseButtonRelease:
        if (widget->isEnabled())
            expected.pointer &= ~2u;
        break;
    case QEvent::Resize:
        if (widget->inherits("QFrame"))
            expected.columns = std::max(static_cast<const QFrame*>(widget)->contentsRect().width(), 0);
        break;
    default:
        break;
    }
    return false;
}

std::string Witness::broken(const QWidget* widget) const
{
    if (!m_outOfRange.empty())
        return m_outOfRange;
    const Expected& expected = m_expected.at(widget);
    const std::string name = std::string(widget->className()) + " " + widget->name() + ": ";
    const PointerState state = pointerState(widget);
    if (state.bits != (expected.pointer & state.remembered))
        return name + "its state is " + std::to_string(state.bits) + " and should be " +
               std::to_string(expected.pointer & state.remembered);
    if (!widget->inherits("ZelGraph"))
        return std::string();
    if (graphCapacity(widget) != expected.columns)
        return name + "it has room for " + std::to_string(graphCapacity(widget)) + " samples and " +
               std::to_string(expected.columns) + " columns";
    const std::string graph = brokenGraph(widget);
    return graph.empty() ? graph : name + graph;
}
