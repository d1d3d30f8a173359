#ifndef ZELGRAPH_H
#define ZELGRAPH_H

#include <qcolor.h>
#include <qframe.h>
#include <qstring.h>

#include <time.h>

#include "zelexport.h"

/*!
 * \brief A strip chart of whole-number samples.
 *
 * The newest sample is at the right; each new one moves the others a pixel to the left. The history has one
 * sample per pixel column inside of the frame and starts anew with every resize. Samples are clamped to the
 * range when they come; those that a later change leaves outside are drawn at the top.
 *
 * All mouse events and key presses are reported and then go on to the parent. With a read-out, a held left
 * button shows the value at the pointer's height.
 */
class ZELKIT_EXPORT ZelGraph : public QFrame
{
    Q_OBJECT

public:
    /*!
     * Makes a graph for values from 0 to 5 with a grid of ten divisions in height and a line every 10 pixels
     * in width; the curve is blue (0, 0, 220), the grid green (0, 150, 0), the ground black. \a readout: the
     * left button shows values; this cannot be changed later.
     */
    ZelGraph(QWidget* parent = 0, const char* name = 0, bool readout = false, WFlags f = 0);

    //! Destroys the graph and its samples.
    ~ZelGraph();

    /*!
     * Sets everything at once and repaints.
     *
     * \a minY and \a maxY are the values at the bottom and at the top. If they are equal, the minimum becomes
     * one less; if the minimum is above the maximum, the maximum becomes one more. \a hGridCount is the
     * number of divisions in height, \a vGridStep the distance of the upright grid lines in pixels, above 0;
     * -1 means no lines. With \a bars, samples are bars from the bottom. With \a rate, their change per
     * second is shown: 0 for the first one, half the change for one in the same second as the one before.
     * With \a autoRange, the range begins at 0 to 2, follows the samples and only grows; the first sample of
     * all puts it from 1 below to 1 above. The first two arguments do not count then.
     *
     * Stored samples become \a minY; how many there are stays.
     */
    void setGraphParameters(int minY, int maxY, int hGridCount, int vGridStep, bool bars, bool rate,
                            bool autoRange, const QColor& background, const QColor& graph,
                            const QColor& grid);

    //! Sets the upper end of the range, as setGraphParameters() does, and repaints. Does nothing while the
    //! range is automatic or if the value is the same.
    void setMaxY(int y);
    //! Sets the lower end of the range, with the same rules.
    void setMinY(int y);

    //! Sets all stored samples to the minimum and repaints; how many there are stays.
    void clearAll();

public slots:
    //! Takes in a sample and repaints at once. Samples that come before the first resize are not kept.
    void setValue(int v);

signals:
    //! A button went down on the graph. This and the other four are emitted before the graph handles the
    //! event, which is valid during the emission.
    void mousePress(QMouseEvent* event);
    //! A button that went down on the graph was let go.
    void mouseRelease(QMouseEvent* event);
    //! A button went down on the graph twice. A mousePress() follows for the same event.
    void mouseDoubleClick(QMouseEvent* event);
    //! The pointer moved while a button was held, or at any time with mouse tracking.
    void mouseMove(QMouseEvent* event);
    //! A key was pressed while the graph had the focus.
    void keyPress(QKeyEvent* event);

protected:
    void mousePressEvent(QMouseEvent* event);
    void mouseReleaseEvent(QMouseEvent* event);
    void mouseDoubleClickEvent(QMouseEvent* event);
    void mouseMoveEvent(QMouseEvent* event);
    void keyPressEvent(QKeyEvent* event);
    void paintEvent(QPaintEvent* event);
    void resizeEvent(QResizeEvent* event);

private:
    ZelGraph(const ZelGraph&);
    ZelGraph& operator=(const ZelGraph&);

    double plottedValue(int v) const;
    void store(double y);
    void flatten();

    void drawGrid(QPainter& painter, const QRect& area) const;
    void drawHistory(QPainter& painter, const QRect& area) const;
    int rowAt(int slot, const QRect& area) const;

    void placeReadout(const QRect& area);
    void drawReadout(QPainter& screen, const QRect& area) const;

    double minY;
    double maxY;
    int hGridCount;
    int vGridStep;
    int modeFlags;
    QColor graphColor;
    QColor gridColor;
    QColor backgroundColor;
    int writePos;
    int capacity;
    int count;
    double* history;
    time_t prevTime;
    time_t lastTime;
    double prevInput;
    double lastInput;
    bool firstValue;
    int mouseX;
    int mouseY;
    QString readoutText;
    QRect readoutRect;
};

#endif
