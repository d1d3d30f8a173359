// Texts and pictures.
#ifndef QLABEL_H
#define QLABEL_H

#include <qframe.h>

namespace zeltk
{
struct LabelData;
}

//! Shows a text or a pixmap. A letter after & is underlined; with a buddy it is that widget's shortcut.
class Q_EXPORT QLabel : public QFrame
{
    Q_OBJECT

public:
    QLabel(QWidget* parent, const char* name = 0, WFlags f = 0);
    QLabel(const QString& text, QWidget* parent, const char* name = 0, WFlags f = 0);
    QLabel(QWidget* buddy, const QString& text, QWidget* parent, const char* name = 0, WFlags f = 0);
    ~QLabel();

    QString text() const;
    //! Null if it shows a text.
    QPixmap* pixmap() const;
    TextFormat textFormat() const;
    void setTextFormat(TextFormat format);

    //! Qt::AlignmentFlags, Qt::WordBreak and Qt::ExpandTabs.
    int alignment() const;
    virtual void setAlignment(int alignment);
    //! Pixels between the text and the edge it is aligned to; -1: half an x if there is a frame.
    int indent() const;
    void setIndent(int indent);
    bool autoResize() const;
    virtual void setAutoResize(bool enable);
    bool hasScaledContents() const;
    void setScaledContents(bool enable);

    virtual void setBuddy(QWidget* buddy);
    QWidget* buddy() const;

    QSize sizeHint() const;
    QSize minimumSizeHint() const;
    int heightForWidth(int width) const;
    void setFont(const QFont& font);

public slots:
    virtual void setText(const QString& text);
    virtual void setPixmap(const QPixmap& pixmap);
    virtual void setNum(int number);
    virtual void setNum(double number);
    void clear();

protected:
    void drawContents(QPainter* p);
    void fontChange(const QFont& oldFont);

private slots:
    void acceleratorSlot();
    void buddyDied();

private:
    ZELTK_LOCAL void contentsChanged();
    ZELTK_LOCAL void drawPicture(QPainter* p);
    ZELTK_LOCAL void updateAccelerator();
    QSize sizeForWidth(int width) const;
    ZELTK_LOCAL QSize measureText(int room) const;

    zeltk::LabelData* d;

    QLabel(const QLabel&);
    QLabel& operator=(const QLabel&);
};

#endif
