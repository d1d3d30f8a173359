// Windows that ask something.
#ifndef QDIALOG_H
#define QDIALOG_H

#include <qwidget.h>

namespace zeltk
{
struct DialogData;
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
    //! A dialog that the program has placed stays there when it is shown.
    void move(int x, int y);
    void move(const QPoint& p);
    void setGeometry(int x, int y, int w, int h);
    void setGeometry(const QRect& rect);

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
    void adjustPosition(QWidget* anchor);

private:
    zeltk::DialogData* d;

    QDialog(const QDialog&);
    QDialog& operator=(const QDialog&);
};

#endif
