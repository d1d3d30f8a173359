#include "zoo.h"

#include "world.h"

#include "colordlg.h"
#include "colorgroupdlg.h"
#include "fontdlg.h"
#include "zelactivelabel.h"
#include "zelactivelabel2.h"
#include "zelcolorbutton.h"
#include "zelcombobox.h"
#include "zeledge.h"
#include "zelframe.h"
#include "zelgraph.h"
#include "zellabel.h"
#include "zellineedit.h"
#include "zellineeditint.h"
#include "zelpushbutton.h"
#include "zelpushbutton2.h"

#include <qcheckbox.h>
#include <qdialog.h>
#include <qlabel.h>
#include <qlistbox.h>
#include <qscrollbar.h>

namespace
{

// While their destructors hide them, they are a QWidget and a QDialog only.
class PlainWidget : public QWidget
{
public:
    using QWidget::QWidget;
};

class PlainDialog : public QDialog
{
public:
    using QDialog::QDialog;
};

struct Kind {
    bool needsParent;
    QWidget* (*make)(Random&, QWidget* parent, const char* name);
};

QColor anyColor(Random& r)
{
    return QColor(r.below(256), r.below(256), r.below(256));
}

// Windows of all kinds, and what the flags change while a widget is made and painted.
Qt::WFlags anyFlags(Random& r)
{
    static const Qt::WFlags flags[] = {0,
                                       0,
                                       0,
                                       0,
                                       Qt::WType_TopLevel,
                                       Qt::WType_Popup,
                                       Qt::WStyle_Customize | Qt::WStyle_NoBorder,
                                       Qt::WStyle_Customize | Qt::WStyle_Tool,
                                       Qt::WDestructiveClose,
                                       Qt::WRepaintNoErase,
                                       Qt::WResizeNoErase | Qt::WStaticContents};
    return flags[r.below(sizeof flags / sizeof flags[0])];
}

// The constructors that take a text take null, too.
const char* anyChars(Random& r)
{
    static const char* const texts[] = {nullptr, "", "text", "&Accelerator", "\xff\xfe\xfd"};
    return texts[r.below(5)];
}

const Kind kinds[] = {
    {true,
     [](Random& r, QWidget* p, const char* n) -> QWidget* { return new ZelActiveLabel(anyChars(r), p, n); }},
    {true, [](Random&, QWidget* p, const char* n) -> QWidget* { return new ZelActiveLabel(p, n); }},
    {true, [](Random&, QWidget* p, const char* n) -> QWidget* { return new ZelActiveLabel2(p, n); }},
    {false,
     [](Random& r, QWidget* p, const char* n) -> QWidget* {
         return new ZelLabel(r.text(), p, n, r.chance(70), anyFlags(r));
     }},
    {false,
     [](Random& r, QWidget* p, const char* n) -> QWidget* {
         return new ZelLabel(anyChars(r), p, n, r.chance(70), anyFlags(r));
     }},
    {false, [](Random&, QWidget* p, const char* n) -> QWidget* { return new ZelColorButton(p, n); }},
    {false,
     [](Random& r, QWidget* p, const char* n) -> QWidget* { return new ZelPushButton(anyColor(r), p, n); }},
    {false,
     [](Random& r, QWidget* p, const char* n) -> QWidget* { return new ZelPushButton2(anyChars(r), p, n); }},
    {false, [](Random&, QWidget* p, const char* n) -> QWidget* { return new ZelPushButton2(p, n); }},
    {false, [](Random& r, QWidget* p, const char* n) -> QWidget* { return new ZelFrame(p, n, anyFlags(r)); }},
    {false, [](Random&, QWidget* p, const char* n) -> QWidget* { return new ZelEdge(p, n); }},
    {false, [](Random&, QWidget* p, const char* n) -> QWidget* { return new ZelLineEdit(p, n); }},
    {false,
     [](Random& r, QWidget* p, const char* n) -> QWidget* { return new ZelComboBox(r.chance(50), p, n); }},
    {false, [](Random&, QWidget* p, const char* n) -> QWidget* { return new ZelComboBox(p, n); }},
    {false,
     [](Random& r, QWidget* p, const char* n) -> QWidget* {
         return new ZelLineEditInt(p, n, r.anyInt(), r.anyInt());
     }},
    {false,
     [](Random& r, QWidget* p, const char* n) -> QWidget* {
         return new ZelGraph(p, n, r.chance(70), anyFlags(r));
     }},
    {false,
     [](Random& r, QWidget* p, const char* n) -> QWidget* {
         return new ZelGraph(p, n, r.chance(70), anyFlags(r));
     }},
    {false,
     [](Random& r, QWidget* p, const char* n) -> QWidget* { return new ZelColorDlg(anyColor(r), p, n); }},
    {false, [](Random&, QWidget* p, const char* n) -> QWidget* { return new ZelColorDlg(p, n); }},
    {false,
     [](Random& r, QWidget* p, const char* n) -> QWidget* {
         return new ZelColorGroupDlg(p, n, r.chance(30), anyFlags(r));
     }},
    {false,
     [](Random& r, QWidget* p, const char* n) -> QWidget* {
         return new ZelFontDlg(p, n, r.chance(30), anyFlags(r));
     }},
    {false, [](Random&, QWidget* p, const char* n) -> QWidget* { return new PlainWidget(p, n); }},
    {false, [](Random& r, QWidget* p, const char* n) -> QWidget* { return new QLabel(r.text(), p, n); }},
    {false, [](Random& r, QWidget* p, const char* n) -> QWidget* { return new QCheckBox(r.text(), p, n); }},
    {false, [](Random&, QWidget* p, const char* n) -> QWidget* { return new QListBox(p, n); }},
    {false,
     [](Random& r, QWidget* p, const char* n) -> QWidget* {
         return new QScrollBar(r.chance(50) ? Qt::Horizontal : Qt::Vertical, p, n);
     }},
    {false,
     [](Random& r, QWidget* p, const char* n) -> QWidget* { return new PlainDialog(p, n, r.chance(30)); }},
};

} // namespace

QWidget* makeAny(World& world, QWidget* parent)
{
    static int made = 0;
    const Kind& kind = kinds[world.random.below(sizeof kinds / sizeof kinds[0])];
    if (!parent && kind.needsParent)
        return nullptr;
    QWidget* widget = kind.make(world.random, parent, ("w" + std::to_string(++made)).c_str());
    world.note(std::string(widget->className()) + " " + widget->name());
    world.add(widget);
    return widget;
}
