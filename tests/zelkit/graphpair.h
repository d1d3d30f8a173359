// A graph in a window and its model: what is done to one is done to the other.
#ifndef TEST_GRAPHPAIR_H
#define TEST_GRAPHPAIR_H

#include "graphmodel.h"
#include "sentevents.h"
#include "waiting.h"

#include <zelgraph.h>

#include <qframe.h>

#include <string>

class GraphPair
{
public:
    // The inside of the frame measures 200 by 100 pixels unless another size is given.
    explicit GraphPair(int width = 202, int height = 102)
        : window(0, "window"), graph(&window, "graph", true), m_frame(&window, "frame")
    {
        window.setGeometry(10, 10, 900, 700);
        graph.setGeometry(0, 0, width, height);
        m_frame.setGeometry(400, 300, width, height);
        m_frame.setFrameStyle(graph.frameStyle());
        model.resize(graph.contentsRect());
        showAndWait(&window);
    }

    void setGraphParameters(int minimum, int maximum, int gridCount, int gridStep, bool bars = false,
                            bool rate = false, bool automatic = false, const QColor& ground = QColor(0, 0, 0),
                            const QColor& curve = QColor(0, 0, 220), const QColor& grid = QColor(0, 150, 0))
    {
        graph.setGraphParameters(minimum, maximum, gridCount, gridStep, bars, rate, automatic, ground, curve,
                                 grid);
        model.setGraphParameters(minimum, maximum, gridCount, gridStep, bars, rate, automatic, ground, curve,
                                 grid);
    }

    void setValue(int value)
    {
        graph.setValue(value);
        model.setValue(value);
    }

    void setMinY(int y)
    {
        graph.setMinY(y);
        model.setMinY(y);
    }

    void setMaxY(int y)
    {
        graph.setMaxY(y);
        model.setMaxY(y);
    }

    void clearAll()
    {
        graph.clearAll();
        model.clearAll();
    }

    void resize(int width, int height)
    {
        graph.resize(width, height);
        m_frame.resize(width, height);
        model.resize(graph.contentsRect());
        settle();
    }

    void setFrame(int style, int lineWidth)
    {
        graph.setFrameStyle(style);
        graph.setLineWidth(lineWidth);
        m_frame.setFrameStyle(style);
        m_frame.setLineWidth(lineWidth);
        model.reframe(graph.contentsRect());
        settle();
    }

    void press(int y)
    {
        ::press(&graph, 30, y);
        model.press(y, graph.font());
    }

    void drag(int y)
    {
        ::drag(&graph, 30, y);
        model.drag(y, graph.font());
    }

    void release()
    {
        ::release(&graph, 30, 30);
        model.release();
    }

    // How the screen differs from the model at this moment; empty if it does not. Where the frame leaves no
    // room nothing is promised: a frame wider than its widget does not cover it, and nothing is erased.
    std::string difference()
    {
        if (graph.contentsRect().isEmpty())
            return "";
        return Pixels::now(&graph).differenceFrom(model.widget(Pixels::now(&m_frame), graph.font()));
    }

    // The inside of the frame on the screen.
    Pixels contents()
    {
        const QRect r = graph.contentsRect();
        return Pixels::now(&graph).part(r.x(), r.y(), r.width(), r.height());
    }

    QWidget window;
    ZelGraph graph;
    GraphModel model;

private:
    QFrame m_frame; // shows what the graph's frame must look like
};

#endif
