#ifndef COLORDLG_H
#define COLORDLG_H

#include <qdialog.h>

#include "zelexport.h"

class QFrame;
class QScrollBar;
class ZelLineEditInt;

/*!
 * \brief A dialog for one colour.
 *
 * Red, green and blue each have a field and a scroll bar for a value from 0 to 255, which follow one another;
 * a panel beside them shows the colour. The dialog is modal and of a fixed size, 300 x 200 pixels. Run it
 * with exec() and read getColor() when it was accepted. modal() offers the same choice in the toolkit's
 * standard dialog.
 */
class ZELKIT_EXPORT ZelColorDlg : public QDialog
{
    Q_OBJECT

public:
    //! Makes a dialog that starts with \a color.
    ZelColorDlg(const QColor& color, QWidget* parent = 0, const char* name = 0);

    //! Makes a dialog that starts with a blue, (0, 0, 239).
    ZelColorDlg(QWidget* parent = 0, const char* name = 0);

    //! Destroys the dialog.
    ~ZelColorDlg();

    //! The colour that the panel shows. The reference is valid until that changes.
    const QColor& getColor();

    /*!
     * Lets the user choose in the toolkit's standard colour dialog instead, which starts with getColor() and
     * belongs to this dialog's parent; this dialog is not shown. Returns whether a colour was chosen: the
     * panel then has it, while the fields and scroll bars keep their values.
     */
    bool modal();

public slots:
    //! Moves the scroll bar of red to \a value.
    void rEditChanged(int value);
    //! Moves the scroll bar of green to \a value.
    void gEditChanged(int value);
    //! Moves the scroll bar of blue to \a value.
    void bEditChanged(int value);

    //! Shows \a value in the field of red and makes it the red of the panel's colour.
    void rScrollChanged(int value);
    //! Shows \a value in the field of green and makes it the green of the panel's colour.
    void gScrollChanged(int value);
    //! Shows \a value in the field of blue and makes it the blue of the panel's colour.
    void bScrollChanged(int value);

private:
    void init(const QColor& color);
    void addCaptions();
    void addEdits();
    void addScrolls(int bottom);
    void addPanel(const QColor& color);
    QRect captionPlace(int channel) const;
    ZelLineEditInt*& edit(int channel);
    QScrollBar*& scroll(int channel);

    ZelLineEditInt* rEdit;
    ZelLineEditInt* gEdit;
    ZelLineEditInt* bEdit;
    QFrame* panel;
    QScrollBar* rScroll;
    QScrollBar* gScroll;
    QScrollBar* bScroll;
};

#endif
