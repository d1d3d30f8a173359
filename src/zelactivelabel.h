#ifndef ZELACTIVELABEL_H
#define ZELACTIVELABEL_H

#include <qstring.h>
#include <qwidget.h>

#include "zelexport.h"

/*!
 * \brief A text that works as a flat button.
 *
 * At rest the label shows its text in blue (0, 0, 220) on the background of its parent, with no border.
 * While the pointer is over it, a raised panel of two pixels surrounds the text, which turns white; while the
 * left button is held, the panel is sunken. Letting go inside the label emits clicked().
 *
 * The text may stand in any of four orientations, so the label also serves as a vertical tab or a caption
 * along the side of something else. It is drawn in the widget's font and keeps two pixels free at every edge
 * of the label. Presses and releases do not go on to the parent.
 */
class ZELKIT_EXPORT ZelActiveLabel : public QWidget
{
    Q_OBJECT

public:
    /*!
     * Makes a label that shows \a text, aligned to the left and centred vertically, from left to right. The
     * palette background colour is copied from \a parent now; later changes of the parent's do not reach
     * the label. \a parent must not be null and owns the label.
     */
    ZelActiveLabel(const char* text, QWidget* parent, const char* name);

    //! Makes a label without a text.
    ZelActiveLabel(QWidget* parent, const char* name);

    //! Destroys the label.
    ~ZelActiveLabel();

    //! Shows \a text from now on and repaints at once.
    void setText(const char* text);

    //! Sets the place of the text, any of Qt's alignment and text flags, and repaints at once.
    void setAlignment(int flags);

    /*!
     * Sets the orientation of the text and repaints at once: 0 upright, 1 from bottom to top, 2 upside down,
     * 3 from top to bottom. Any other code shows the text as 0 does.
     */
    void setTextTop(int code);

signals:
    /*!
     * The left button was pressed on the label and a button was released inside it. Emitted from the release
     * event, after the label was repainted in its unpressed look. A double click emits it twice.
     */
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event);
    void mouseReleaseEvent(QMouseEvent* event);
    void enterEvent(QEvent* event);
    void leaveEvent(QEvent* event);
    void paintEvent(QPaintEvent* event);

private:
    void init(QWidget* parent);
    void drawPanel(QPainter& painter);
    void drawLabel(QPainter& painter);

    QString text;
    unsigned int state;
    int alignment;
    int textTop;
};

#endif
