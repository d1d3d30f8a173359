#ifndef FONTDLG_H
#define FONTDLG_H

#include <qdialog.h>

#include "zelexport.h"

class QCheckBox;
class QComboBox;
class QLabel;

//! The families that ZelFontDlg offers; a null pointer ends the table. \relates ZelFontDlg
extern ZELKIT_EXPORT const char* Families[];
//! The sizes in points that ZelFontDlg offers; a null pointer ends the table. \relates ZelFontDlg
extern ZELKIT_EXPORT const char* Sizes[];
//! The weights that ZelFontDlg offers, light to heavy; a null pointer ends the table. \relates ZelFontDlg
extern ZELKIT_EXPORT const char* Weights[];

/*!
 * \brief A dialog for a font.
 *
 * The user chooses family, size in points and weight from combo boxes, of which the first two may also be
 * typed into, and switches italic, underline and strike-out. A label shows a text in the font as it is being
 * chosen. The dialog has a fixed size, 500 x 200 pixels. Call setFontParameters(), run the dialog with exec()
 * and read the getters when it was accepted.
 *
 * The getters read the controls. The setters of single values change a control only and leave the label as it
 * is; setFontParameters() changes both.
 *
 * Weights are those of QFont: 25 light, 50 normal, 63 demi-bold, 75 bold, 87 black. A weight counts without
 * its sign; any other than these five selects "Light".
 */
class ZELKIT_EXPORT ZelFontDlg : public QDialog
{
    Q_OBJECT

public:
    //! Makes a dialog as QDialog does. The label starts in the dialog's own font.
    ZelFontDlg(QWidget* parent = 0, const char* name = 0, bool modal = false, WFlags f = 0);

    //! Destroys the dialog.
    ~ZelFontDlg();

    /*!
     * Sets all controls and shows the label in this font, with \a weight as it is given (but without its
     * sign). A \a size below 1 counts as 8. \a family need not be one of Families and must not be null.
     */
    void setFontParameters(const char* family, int size, int weight, bool italic, bool underline,
                           bool strikeOut);
    //! Sets the text of the family box. \a family must not be null.
    void setFontFamily(const char* family);
    //! Sets the text of the size box; a \a size below 1 counts as 8.
    void setFontSize(int size);
    //! Selects the name of \a weight.
    void setFontWeight(int weight);
    //! Checks or unchecks italic.
    void setFontItalic(bool on);
    //! Checks or unchecks underline.
    void setFontUnderline(bool on);
    //! Checks or unchecks strike-out.
    void setFontStrikeOut(bool on);

    //! The text of the family box. The pointer is valid until that text changes: copy it.
    const char* getFontFamily();
    //! The number that the text of the size box begins with; 0 if it begins with none.
    int getFontSize();
    //! The weight whose name is selected.
    int getFontWeight();
    //! Whether italic is checked.
    bool beFontItalic();
    //! Whether underline is checked.
    bool beFontUnderline();
    //! Whether strike-out is checked.
    bool beFontStrikeOut();

public slots:
    //! Shows the label in the family of the entry \a index.
    void familyActivated(int index);
    //! Shows the label in the size of the entry \a index, without its sign.
    void sizeActivated(int index);
    //! Shows the label in the weight of the entry \a index.
    void weightActivated(int index);
    //! Shows the label italic or upright, as is checked.
    void italicClicked();
    //! Underlines the label or not, as is checked.
    void underlineClicked();
    //! Strikes the label out or not, as is checked.
    void strikeoutClicked();

private:
    void addLists();
    void addStyles();
    void addPanel();

    QComboBox* familyEdit;
    QComboBox* sizeEdit;
    QComboBox* weightEdit;
    QCheckBox* italicEdit;
    QCheckBox* underlineEdit;
    QCheckBox* strikeOutEdit;
    QLabel* panel;
};

#endif
