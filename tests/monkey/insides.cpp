// Compiled without access control: nothing else may look into the widgets.
#include "insides.h"

#include <zelactivelabel.h>
#include <zelactivelabel2.h>
#include <zelcolorbutton.h>
#include <zelgraph.h>
#include <zellabel.h>
#include <zellineeditint.h>

#include <cmath>

template <class Widget>
static PointerState wholeState(const QWidget* widget)
{
    return {3, static_cast<const Widget*>(widget)->state};
}

static PointerState lookOf(const QWidget* widget)
{
    const ZelLabel* label = static_cast<const ZelLabel*>(widget);
    return {label->active ? 1u : 0u, label->currentColor == &label->hoverColor ? 1u : 0u};
}

PointerState pointerState(const QWidget* widget)
{
    static const struct {
        const char* className;
        PointerState (*read)(const QWidget*);
    } classes[] = {
        {"ZelActiveLabel", wholeState<ZelActiveLabel>},
        {"ZelActiveLabel2", wholeState<ZelActiveLabel2>},
        {"ZelColorButton", wholeState<ZelColorButton>},
        {"ZelLabel", lookOf},
    };
    for (const auto& entry : classes)
        if (widget->inherits(entry.className))
            return entry.read(widget);
    return {0, 0};
}

int graphCapacity(const QWidget* graph)
{
    return static_cast<const ZelGraph*>(graph)->capacity;
}

std::string brokenGraph(const QWidget* widget)
{
    const ZelGraph* graph = static_cast<const ZelGraph*>(widget);
    const bool readout = graph->modeFlags & 8, shown = graph->modeFlags & 16,
               autoRange = graph->modeFlags & 4;
    if (graph->modeFlags & ~31 || (shown && !readout))
        return "its mode is " + std::to_string(graph->modeFlags);
    if (!std::isfinite(graph->minY) || !std::isfinite(graph->maxY) ||
        (autoRange && graph->minY >= graph->maxY))
        return "its range is " + std::to_string(graph->minY) + " to " + std::to_string(graph->maxY);
    if ((graph->history != nullptr) != (graph->capacity > 0))
        return "it has no history, or one without room";
    if (graph->count < 0 || graph->count > graph->capacity)
        return "it has " + std::to_string(graph->count) + " samples and room for " +
               std::to_string(graph->capacity);
    const int next = graph->count < graph->capacity ? graph->count : graph->writePos;
    if (graph->writePos != next || next < 0 || (next > 0 && next >= graph->capacity))
        return "the next sample goes to " + std::to_string(graph->writePos);
    for (int i = 0; i < graph->capacity; ++i) {
        const double sample = graph->history[i];
        if (!std::isfinite(sample) || (autoRange && (sample < graph->minY || sample > graph->maxY)))
            return "sample " + std::to_string(i) + " is " + std::to_string(sample);
    }
    return std::string();
}

bool isInRange(const QWidget* fieldOfAnInt, int number)
{
    const ZelLineEditInt* field = static_cast<const ZelLineEditInt*>(fieldOfAnInt);
    return number >= field->minimum && number <= field->maximum;
}
