// Fields for a line of text.
#ifndef QLINEEDIT_H
#define QLINEEDIT_H

#include <qframe.h>
#include <qstring.h>

class QValidator;

namespace zeltk
{
struct LineEditData;
}

//! A line of text that the user can edit.
class Q_EXPORT QLineEdit : public QFrame
{
    Q_OBJECT

public:
    QLineEdit(QWidget* parent, const char* name = 0);
    QLineEdit(const QString& contents, QWidget* parent, const char* name = 0);
    QLineEdit(const QString& contents, const QString& inputMask, QWidget* parent, const char* name = 0);
    ~QLineEdit();

    enum EchoMode { Normal, NoEcho, Password };

    QString text() const;
    //! As it is shown: stars for passwords.
    QString displayText() const;
    //! With an input mask, the mask's length.
    int maxLength() const;
    bool frame() const;
    EchoMode echoMode() const;
    bool isReadOnly() const;
    const QValidator* validator() const;
    QSize sizeHint() const;
    QSize minimumSizeHint() const;
    int cursorPosition() const;
    int alignment() const;
    //! Sets text, cursor and selection if the validator does not object.
    bool validateAndSet(const QString& text, int cursor, int anchor, int drag);

    //! With `mark` the selection grows or shrinks, else there is none afterwards.
    void cursorForward(bool mark, int steps = 1);
    void cursorBackward(bool mark, int steps = 1);
    void cursorLeft(bool mark, int steps = 1) { cursorForward(mark, -steps); }
    void cursorRight(bool mark, int steps = 1) { cursorForward(mark, steps); }
    void cursorWordForward(bool mark);
    void cursorWordBackward(bool mark);
    void home(bool mark);
    void end(bool mark);
    //! Delete the selection, or else the letter before or behind the cursor.
    void backspace();
    void del();

    bool isModified() const;
    void clearModified();
    bool edited() const { return isModified(); }
    void setEdited(bool edited);

    bool hasSelectedText() const;
    QString selectedText() const;
    int selectionStart() const;
    bool getSelection(int* start, int* end);
    bool hasMarkedText() const { return hasSelectedText(); }
    QString markedText() const { return selectedText(); }

    bool isUndoAvailable() const;
    bool isRedoAvailable() const;
    //! Whether a press on the selection leaves it alone until the button is released.
    bool dragEnabled() const;

    //! Whether the mask is filled as far as it must be, and the validator is content.
    bool hasAcceptableInput() const;

    //! One sign for each place of the text: A a letter, N letter or digit, X anything, 9 digit, D digit but
    //! 0; their small twins, 0 for 9 and # for a digit or a sign may stay empty. After > letters become
    //! capital, after < small, after ! neither. Other signs, and those after a backslash, are separators. A
    //! semicolon and a sign at the end tell how empty places are shown: a blank without it.
    QString inputMask() const;
    //! An empty mask allows all texts again.
    void setInputMask(const QString& inputMask);

public slots:
    virtual void setText(const QString& text);
    virtual void selectAll();
    virtual void deselect();
    virtual void clearValidator();
    //! In place of the selection.
    virtual void insert(const QString& text);
    virtual void clear();
    virtual void undo();
    virtual void redo();
    virtual void setMaxLength(int length);
    virtual void setFrame(bool enable);
    virtual void setEchoMode(EchoMode mode);
    virtual void setReadOnly(bool enable);
    virtual void setValidator(const QValidator* validator);
    virtual void setFont(const QFont& font);
    virtual void setPalette(const QPalette& palette);
    virtual void setSelection(int start, int length);
    virtual void setCursorPosition(int position);
    virtual void setAlignment(int alignment);
    virtual void cut();
    virtual void copy() const;
    virtual void paste();
    virtual void setDragEnabled(bool enable);

signals:
    //! By the user or by the program.
    void textChanged(const QString& text);
    //! Only if the text is acceptable, or could be repaired.
    void returnPressed();
    void lostFocus();
    void selectionChanged();

protected:
    bool event(QEvent* event);
    void mousePressEvent(QMouseEvent* event);
    void mouseMoveEvent(QMouseEvent* event);
    void mouseReleaseEvent(QMouseEvent* event);
    void mouseDoubleClickEvent(QMouseEvent* event);
    void keyPressEvent(QKeyEvent* event);
    void focusInEvent(QFocusEvent* event);
    void focusOutEvent(QFocusEvent* event);
    void drawContents(QPainter* p);
    void windowActivationChange(bool oldActive);

private:
    ZELTK_LOCAL void init();
    ZELTK_LOCAL void returnKey();
    ZELTK_LOCAL bool plainKey(QKeyEvent* event);
    ZELTK_LOCAL bool controlKey(QKeyEvent* event);
    ZELTK_LOCAL bool controlEditKey(int key);
    ZELTK_LOCAL void wordKey(bool forward, bool mark);
    ZELTK_LOCAL void removeRest();
    ZELTK_LOCAL void removeWordBefore();
    ZELTK_LOCAL void removeWordBehind();
    ZELTK_LOCAL void removeWord(bool forward);

    friend struct zeltk::LineEditData;
    zeltk::LineEditData* d;

    QLineEdit(const QLineEdit&);
    QLineEdit& operator=(const QLineEdit&);
};

#endif
