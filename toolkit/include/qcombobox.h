// Fields with a list to choose from.
#ifndef QCOMBOBOX_H
#define QCOMBOBOX_H

#include <qwidget.h>

class QKeyEvent;
class QLineEdit;
class QListBox;
class QPixmap;
class QStrList;
class QStringList;
class QValidator;

namespace zeltk
{
struct ComboBoxData;
}

//! Shows one of several texts; the others are in a list that opens on a click. Its text may be editable.
class Q_EXPORT QComboBox : public QWidget
{
    Q_OBJECT

public:
    QComboBox(QWidget* parent = 0, const char* name = 0);
    QComboBox(bool rw, QWidget* parent = 0, const char* name = 0);
    ~QComboBox();

    int count() const;

    void insertStringList(const QStringList& list, int index = -1);
    void insertStrList(const QStrList& list, int index = -1);
    void insertStrList(const QStrList* list, int index = -1);
    void insertStrList(const char** strings, int numStrings = -1, int index = -1);

    //! -1 appends.
    void insertItem(const QString& text, int index = -1);
    void insertItem(const QPixmap& pixmap, int index = -1);
    void insertItem(const QPixmap& pixmap, const QString& text, int index = -1);
    void removeItem(int index);

    int currentItem() const;
    virtual void setCurrentItem(int index);
    QString currentText() const;
    virtual void setCurrentText(const QString& text);

    QString text(int index) const;
    const QPixmap* pixmap(int index) const;
    void changeItem(const QString& text, int index);
    void changeItem(const QPixmap& pixmap, int index);
    void changeItem(const QPixmap& pixmap, const QString& text, int index);

    virtual void setPalette(const QPalette& palette);
    virtual void setFont(const QFont& font);
    virtual void setEnabled(bool enable);

    QSize sizeHint() const;

    bool autoResize() const;
    //! Whether it takes the size of its text whenever that changes.
    virtual void setAutoResize(bool enable);

    //! How many entries the open list shows without scrolling.
    virtual void setSizeLimit(int limit);
    int sizeLimit() const;
    //! How many entries the user may add up to.
    virtual void setMaxCount(int count);
    int maxCount() const;

    //! Where Return puts a new text.
    enum Policy { NoInsertion, AtTop, AtCurrent, AtBottom, AfterCurrent, BeforeCurrent };
    virtual void setInsertionPolicy(Policy policy);
    Policy insertionPolicy() const;

    virtual void setValidator(const QValidator* validator);
    const QValidator* validator() const;

    virtual void setListBox(QListBox* listBox);
    //! Null if the list is a plain one of the combo box.
    QListBox* listBox() const;
    virtual void setLineEdit(QLineEdit* edit);
    QLineEdit* lineEdit() const;

    //! Whether typing completes to an entry.
    virtual void setAutoCompletion(bool enable);
    bool autoCompletion() const;
    bool eventFilter(QObject* watched, QEvent* event);
    //! Whether Return inserts texts that are there already.
    void setDuplicatesEnabled(bool enable);
    bool duplicatesEnabled() const;

    bool editable() const;
    void setEditable(bool editable);

    virtual void popup();
    void hide();

public slots:
    void clear();
    void clearValidator();
    void clearEdit();
    virtual void setEditText(const QString& text);

signals:
    //! The user has chosen an entry, even the same one again; the program's choices are not told.
    void activated(int index);
    //! The user moves through the open list.
    void highlighted(int index);
    void activated(const QString& text);
    void highlighted(const QString& text);
    //! The text of an editable one.
    void textChanged(const QString& text);

private slots:
    void internalActivate(int index);
    void internalHighlight(int index);
    void returnPressed();

protected:
    void paintEvent(QPaintEvent* event);
    void resizeEvent(QResizeEvent* event);
    void mousePressEvent(QMouseEvent* event);
    void mouseMoveEvent(QMouseEvent* event);
    void mouseReleaseEvent(QMouseEvent* event);
    void mouseDoubleClickEvent(QMouseEvent* event);
    void keyPressEvent(QKeyEvent* event);
    void focusInEvent(QFocusEvent* event);
    void focusOutEvent(QFocusEvent* event);
    void wheelEvent(QWheelEvent* event);

private:
    ZELTK_LOCAL void init();
    ZELTK_LOCAL void inserted(int index);
    ZELTK_LOCAL int entryForLetter(QKeyEvent* event);
    ZELTK_LOCAL void chooseTyped(int index, const QString& typed);
    ZELTK_LOCAL void complete();
    ZELTK_LOCAL bool editEvent(QEvent* event);
    ZELTK_LOCAL bool listEvent(QObject* watched, QEvent* event);
    ZELTK_LOCAL bool listKey(QKeyEvent* event);
    ZELTK_LOCAL bool listMouseInside(QMouseEvent* event);
    ZELTK_LOCAL bool listMouseOutside(QMouseEvent* event);
    void setUpListBox();
    void setUpLineEdit();
    void popDownListBox();
    void currentChanged();
    int completionIndex(const QString& prefix, int from) const;

    zeltk::ComboBoxData* d;

    QComboBox(const QComboBox&);
    QComboBox& operator=(const QComboBox&);
};

#endif
