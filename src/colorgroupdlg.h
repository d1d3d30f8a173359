#ifndef COLORGROUPDLG_H
#define COLORGROUPDLG_H

#include <qdialog.h>
#include <qpalette.h>

#include "zelexport.h"

class QMouseEvent;
class ZelFrame;

/*!
 * \brief A dialog for the colours of a colour group.
 *
 * Ten swatches show the colours of ten roles. The left button on one of them opens the toolkit's standard
 * colour dialog, and the swatch takes the colour chosen there; foreground and text always take it together.
 * The dialog has a fixed size that follows from its font. Call setColorGroup(), run the dialog with exec()
 * and read getColorGroup() when it was accepted.
 */
class ZELKIT_EXPORT ZelColorGroupDlg : public QDialog
{
    Q_OBJECT

public:
    //! Makes a dialog as QDialog does. It shows the colours of its own palette, Midlight in place of Base.
    ZelColorGroupDlg(QWidget* parent = 0, const char* name = 0, bool modal = false, WFlags f = 0);

    //! Destroys the dialog.
    ~ZelColorGroupDlg();

    //! Shows the colours of \a cg; its text colour also stands for its foreground.
    void setColorGroup(const QColorGroup& cg);

    /*!
     * Makes a colour group from the swatches. Background also serves as button colour and text as bright
     * text; the other roles without a swatch are those that QColorGroup derives. The next call overwrites
     * what is returned.
     */
    const QColorGroup& getColorGroup();

protected slots:
    //! Lets the user choose the colour of foreground and text if \a event is of the left button.
    void foregroundColorClick(QMouseEvent* event);
    //! Lets the user choose the colour of background if \a event is of the left button.
    void backgroundColorClick(QMouseEvent* event);
    //! Lets the user choose the colour of light if \a event is of the left button.
    void lightColorClick(QMouseEvent* event);
    //! Lets the user choose the colour of dark if \a event is of the left button.
    void darkColorClick(QMouseEvent* event);
    //! Lets the user choose the colour of mid if \a event is of the left button.
    void midColorClick(QMouseEvent* event);
    //! Lets the user choose the colour of foreground and text if \a event is of the left button.
    void textColorClick(QMouseEvent* event);
    //! Lets the user choose the colour of base if \a event is of the left button.
    void baseColorClick(QMouseEvent* event);
    //! Lets the user choose the colour of shadow if \a event is of the left button.
    void shadowColorClick(QMouseEvent* event);
    //! Lets the user choose the colour of highlight if \a event is of the left button.
    void highlightColorClick(QMouseEvent* event);
    //! Lets the user choose the colour of highlighted text if \a event is of the left button.
    void highlightedTextColorClick(QMouseEvent* event);

private:
    void addCaptions(int first, int last);
    void addSwatches(int first, int last);
    ZelFrame*& swatch(int row);
    void chooseColor(const QMouseEvent* event, ZelFrame* swatch, ZelFrame* coupled = 0);

    ZelFrame* foregroundColorEdit;
    ZelFrame* backgroundColorEdit;
    ZelFrame* lightColorEdit;
    ZelFrame* darkColorEdit;
    ZelFrame* midColorEdit;
    ZelFrame* textColorEdit;
    ZelFrame* baseColorEdit;
    ZelFrame* shadowColorEdit;
    ZelFrame* highlightColorEdit;
    ZelFrame* highlightedTextColorEdit;
    QColorGroup colorGroup;
};

#endif
