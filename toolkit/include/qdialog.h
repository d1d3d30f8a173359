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

    //! A part beside (or, Vertical, below) the rest that is shown on demand.
    void setExtension(QWidget* extension);
    QWidget* extension() const;
    void setOrientation(Orientation orientation);
    Orientation orientation() const;

    //! A corner to resize the dialog with.
    void setSizeGripEnabled(bool enable);
    bool isSizeGripEnabled() const;

    void setModal(bool modal);
    bool isModal() const;

public slots:
    //! Shows the dialog as a modal one and returns its result when it has been hidden: Rejected if
    //! nobody has set another.
    int exec();

protected slots:
    //! Hides the dialog with that result; accept() and reject() call it.
    virtual void done(int result);
    virtual void accept();
    virtual void reject();

    void showExtension(bool show);

protected:
    void setResult(int result);
    void keyPressEvent(QKeyEvent* event);
    void closeEvent(QCloseEvent* event);
    void resizeEvent(QResizeEvent* event);
    void adjustPosition(QWidget* anchor);

private:
    zeltk::DialogData* d;

    QDialog(const QDialog&);
    QDialog& operator=(const QDialog&);
};

#endif
