// Windows that ask something.
#ifndef QDIALOG_H
#define QDIALOG_H

#include <qwidget.h>

class QPushButton;

namespace zeltk
{
struct DialogData;
struct DialogAccess;
} // namespace zeltk

//! Ends with a result. Escape rejects it, Return presses its default button.
class Q_EXPORT QDialog : public QWidget
{
    Q_OBJECT

public:
    explicit QDialog(QWidget* parent = 0, const char* name = 0, bool modal = false, WFlags f = 0);
    ~QDialog();

    enum DialogCode { Rejected, Accepted };

    int result() const;

    void show();
    void hide();
    //! A dialog that was moved or resized by the program stays where it is when it is shown.
    void move(int x, int y);
    void move(const QPoint& p);
    void resize(int w, int h);
    void resize(const QSize& size);
    void setGeometry(int x, int y, int w, int h);
    void setGeometry(const QRect& rect);

    QSize sizeHint() const;
    QSize minimumSizeHint() const;

    void setModal(bool modal);
    bool isModal() const;

public slots:
    //! Shows the dialog as a modal one and returns its result when it has been hidden.
    int exec();

protected slots:
    virtual void done(int result);
    virtual void accept();
    virtual void reject();

protected:
    void setResult(int result);
    void keyPressEvent(QKeyEvent* event);
    void closeEvent(QCloseEvent* event);
    void contextMenuEvent(QContextMenuEvent* event);
    bool eventFilter(QObject* watched, QEvent* event);
    void adjustPosition(QWidget* anchor);

private:
    void setDefault(QPushButton* button);
    void setMainDefault(QPushButton* button);
    void hideDefault();

    friend struct zeltk::DialogAccess;
    zeltk::DialogData* d;

    QDialog(const QDialog&);
    QDialog& operator=(const QDialog&);
};

#endif
