// A widget that writes down what the user does to it.
#ifndef TEST_INPUTLOG_H
#define TEST_INPUTLOG_H

#include "eventlog.h"

#include <string>

// Writes mouse, wheel, crossings, keys and focus, as "name press 5,6 button 1 state 0", "name enter",
// "name key a state 0", "name focus in reason 6". What it does not accept goes on to the parent, as usual.
class InputWidget : public QWidget
{
public:
    InputWidget(EventLog* log, QWidget* parent, const char* name, int x, int y, int w, int h,
                WFlags flags = 0)
        : QWidget(parent, name, flags), acceptsMouse(false), acceptsKeys(false), logsMoves(true), m_log(log)
    {
        setGeometry(x, y, w, h);
    }

    bool acceptsMouse;
    bool acceptsKeys;
    bool logsMoves;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void write(const std::string& text) { m_log->write(std::string(name()) + " " + text); }
    void writeMouse(const char* what, const QMouseEvent* event);
    void writeKey(const char* what, const QKeyEvent* event);

    EventLog* m_log;
};

#endif
