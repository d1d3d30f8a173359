// Lists of texts to choose from.
#ifndef QLISTBOX_H
#define QLISTBOX_H

#include <qpixmap.h>
#include <qscrollview.h>
#include <qstringlist.h>

class QListBox;
class QStrList;

namespace zeltk
{
struct ListBoxData;
} // namespace zeltk

//! An entry of a list box.
class Q_EXPORT QListBoxItem
{
public:
    QListBoxItem(QListBox* listbox = 0);
    QListBoxItem(QListBox* listbox, QListBoxItem* after);
    virtual ~QListBoxItem();

    virtual QString text() const;
    virtual const QPixmap* pixmap() const;
    virtual int height(const QListBox* listbox) const;
    virtual int width(const QListBox* listbox) const;

    bool isSelected() const { return s; }
    bool isCurrent() const;
    bool selected() const { return isSelected(); }
    bool current() const { return isCurrent(); }

    QListBox* listBox() const { return lbox; }
    void setSelectable(bool selectable) { able = selectable; }
    bool isSelectable() const { return able; }
    QListBoxItem* next() const;
    QListBoxItem* prev() const;
    virtual int rtti() const;
    static int RTTI;

protected:
    //! At the item's place, which is the origin.
    virtual void paint(QPainter* p) = 0;
    virtual void setText(const QString& text) { txt = text; }
    //! Such an item paints its own background when it is selected.
    void setCustomHighlighting(bool custom) { own = custom; }

private:
    friend class QListBox;

    QString txt;
    QListBox* lbox;
    bool s;
    bool able;
    bool own;

    QListBoxItem(const QListBoxItem&);
    QListBoxItem& operator=(const QListBoxItem&);
};

//! An entry that shows a text.
class Q_EXPORT QListBoxText : public QListBoxItem
{
public:
    QListBoxText(QListBox* listbox, const QString& text = QString::null);
    QListBoxText(const QString& text = QString::null);
    QListBoxText(QListBox* listbox, const QString& text, QListBoxItem* after);
    ~QListBoxText();

    int height(const QListBox* listbox) const;
    int width(const QListBox* listbox) const;
    int rtti() const;
    static int RTTI;

protected:
    void paint(QPainter* p);

private:
    QListBoxText(const QListBoxText&);
    QListBoxText& operator=(const QListBoxText&);
};

//! An entry that shows a picture, with a text beside it if it has one.
class Q_EXPORT QListBoxPixmap : public QListBoxItem
{
public:
    QListBoxPixmap(QListBox* listbox, const QPixmap& pixmap);
    QListBoxPixmap(const QPixmap& pixmap);
    QListBoxPixmap(QListBox* listbox, const QPixmap& pixmap, QListBoxItem* after);
    QListBoxPixmap(QListBox* listbox, const QPixmap& pixmap, const QString& text);
    QListBoxPixmap(const QPixmap& pixmap, const QString& text);
    QListBoxPixmap(QListBox* listbox, const QPixmap& pixmap, const QString& text, QListBoxItem* after);
    ~QListBoxPixmap();

    const QPixmap* pixmap() const { return &pm; }
    int height(const QListBox* listbox) const;
    int width(const QListBox* listbox) const;
    int rtti() const;
    static int RTTI;

protected:
    void paint(QPainter* p);

private:
    QPixmap pm;

    QListBoxPixmap(const QListBoxPixmap&);
    QListBoxPixmap& operator=(const QListBoxPixmap&);
};

//! A column of entries with one of them current.
class Q_EXPORT QListBox : public QScrollView
{
    Q_OBJECT

public:
    QListBox(QWidget* parent = 0, const char* name = 0, WFlags f = 0);
    ~QListBox();

    virtual void setFont(const QFont& font);

    uint count() const;

    void insertStringList(const QStringList& list, int index = -1);
    void insertStrList(const QStrList* list, int index = -1);
    void insertStrList(const QStrList& list, int index = -1);
    void insertStrList(const char** strings, int numStrings = -1, int index = -1);

    //! -1 and places behind the end append. The list box deletes its items.
    void insertItem(const QListBoxItem* item, int index = -1);
    void insertItem(const QListBoxItem* item, const QListBoxItem* after);
    void insertItem(const QString& text, int index = -1);
    void insertItem(const QPixmap& pixmap, int index = -1);
    void insertItem(const QPixmap& pixmap, const QString& text, int index = -1);
    void removeItem(int index);

    QString text(int index) const;
    const QPixmap* pixmap(int index) const;

    void changeItem(const QListBoxItem* item, int index);
    void changeItem(const QString& text, int index);
    void changeItem(const QPixmap& pixmap, int index);
    void changeItem(const QPixmap& pixmap, const QString& text, int index);

    //! Gives it to the caller.
    void takeItem(const QListBoxItem* item);

    int numItemsVisible() const;
    //! -1 if there is none.
    int currentItem() const;
    QString currentText() const;
    virtual void setCurrentItem(int index);
    virtual void setCurrentItem(QListBoxItem* item);
    void centerCurrentItem() { ensureCurrentVisible(); }
    int topItem() const;
    virtual void setTopItem(int index);
    virtual void setBottomItem(int index);
    long maxItemWidth() const;

    enum SelectionMode { Single, Multi, Extended, NoSelection };
    virtual void setSelectionMode(SelectionMode mode);
    SelectionMode selectionMode() const;
    void setMultiSelection(bool multi) { setSelectionMode(multi ? Multi : Single); }
    bool isMultiSelection() const { return selectionMode() == Multi || selectionMode() == Extended; }

    virtual void setSelected(QListBoxItem* item, bool select);
    void setSelected(int index, bool select) { setSelected(item(index), select); }
    bool isSelected(int index) const { return isSelected(item(index)); }
    bool isSelected(const QListBoxItem* item) const;
    QListBoxItem* selectedItem() const;

    QSize sizeHint() const;
    QSize minimumSizeHint() const;

    QListBoxItem* item(int index) const;
    int index(const QListBoxItem* item) const;
    QListBoxItem* findItem(const QString& text, ComparisonFlags compare = BeginsWith) const;
    QListBoxItem* firstItem() const;

    int itemHeight(int index = 0) const;
    QListBoxItem* itemAt(const QPoint& p) const;
    QRect itemRect(QListBoxItem* item) const;
    bool itemVisible(int index) { return itemVisible(item(index)); }
    bool itemVisible(const QListBoxItem* item);

    void triggerUpdate(bool doLayout);
    void sort(bool ascending = true);

public slots:
    void clear();
    virtual void ensureCurrentVisible();
    virtual void clearSelection();
    virtual void selectAll(bool select);
    virtual void invertSelection();

signals:
    //! Another entry is the current one; selected: one was chosen with a double click or Return. The form
    //! with a text is for entries that have one.
    void highlighted(int index);
    void selected(int index);
    void highlighted(const QString& text);
    void selected(const QString& text);
    void highlighted(QListBoxItem* item);
    void selected(QListBoxItem* item);
    //! The second one only if one entry at most can be selected.
    void selectionChanged();
    void selectionChanged(QListBoxItem* item);
    void currentChanged(QListBoxItem* item);
    void clicked(QListBoxItem* item);
    void clicked(QListBoxItem* item, const QPoint& pos);
    void pressed(QListBoxItem* item);
    void pressed(QListBoxItem* item, const QPoint& pos);
    void doubleClicked(QListBoxItem* item);
    void returnPressed(QListBoxItem* item);
    void rightButtonClicked(QListBoxItem* item, const QPoint& pos);
    void rightButtonPressed(QListBoxItem* item, const QPoint& pos);
    void mouseButtonPressed(int button, QListBoxItem* item, const QPoint& pos);
    void mouseButtonClicked(int button, QListBoxItem* item, const QPoint& pos);
    void contextMenuRequested(QListBoxItem* item, const QPoint& pos);
    //! The pointer moves with no left button held, over an entry or below them all.
    void onItem(QListBoxItem* item);
    void onViewport();

protected:
    void mousePressEvent(QMouseEvent* event);
    void mouseReleaseEvent(QMouseEvent* event);
    void mouseDoubleClickEvent(QMouseEvent* event);
    void mouseMoveEvent(QMouseEvent* event);
    void keyPressEvent(QKeyEvent* event);
    void focusInEvent(QFocusEvent* event);
    void focusOutEvent(QFocusEvent* event);
    void resizeEvent(QResizeEvent* event);
    void showEvent(QShowEvent* event);
    bool eventFilter(QObject* watched, QEvent* event);
    void windowActivationChange(bool oldActive);
    void viewportPaintEvent(QPaintEvent* event);

    void updateItem(int index);
    void updateItem(QListBoxItem* item);
    int totalWidth() const;
    int totalHeight() const;

private slots:
    void clearInputString();

private:
    ZELTK_LOCAL bool tellHighlighted(QListBoxItem* item);
    ZELTK_LOCAL bool tellSelected(QListBoxItem* item);
    ZELTK_LOCAL void paintItem(QPainter* p, QListBoxItem* item, const QRect& r);
    ZELTK_LOCAL void lookFor(QKeyEvent* event);

    zeltk::ListBoxData* d;

    QListBox(const QListBox&);
    QListBox& operator=(const QListBox&);
};

#endif
