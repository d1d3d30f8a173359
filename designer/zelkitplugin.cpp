// The plugin for Qt Designer 3: offers the fifteen classes in a group of their own. Programs that load forms
// at run time create the classes through it, too.
#include <colordlg.h>
#include <colorgroupdlg.h>
#include <fontdlg.h>
#include <zelactivelabel.h>
#include <zelactivelabel2.h>
#include <zelcolorbutton.h>
#include <zelcombobox.h>
#include <zeledge.h>
#include <zelframe.h>
#include <zelgraph.h>
#include <zellabel.h>
#include <zellineedit.h>
#include <zellineeditint.h>
#include <zelpushbutton.h>
#include <zelpushbutton2.h>

#include <qiconset.h>
#include <qpixmap.h>
#include <qwidgetplugin.h>

#include <limits.h>

namespace
{

template <class Widget>
QWidget* make(QWidget* parent, const char* name)
{
    return new Widget(parent, name);
}

// Those with constructors that ask for more get what a form can change later, or what limits nothing.
template <>
QWidget* make<ZelLabel>(QWidget* parent, const char* name)
{
    return new ZelLabel(name, parent, name, true, 0);
}

template <>
QWidget* make<ZelPushButton>(QWidget* parent, const char* name)
{
    return new ZelPushButton(Qt::gray, parent, name);
}

template <>
QWidget* make<ZelLineEditInt>(QWidget* parent, const char* name)
{
    return new ZelLineEditInt(parent, name, INT_MIN, INT_MAX);
}

struct Class {
    const char* name;
    const char* header;
    bool container;
    const char* brief;
    QWidget* (*make)(QWidget* parent, const char* name);
};

const Class classes[] = {
#define CLASS(name, header, container, brief) {#name, header, container, brief, make<name>},
#include "classes.inc"
#undef CLASS
};
const int classCount = sizeof classes / sizeof classes[0];

// The class of that name, or null.
const Class* find(const QString& name)
{
    for (int i = 0; i < classCount; ++i)
        if (name == classes[i].name)
            return &classes[i];
    return 0;
}

} // namespace

class ZelkitPlugin : public QWidgetPlugin
{
public:
    QStringList keys() const;
    QWidget* create(const QString& key, QWidget* parent, const char* name);
    QString group(const QString& key) const;
    QIconSet iconSet(const QString& key) const;
    QString includeFile(const QString& key) const;
    QString toolTip(const QString& key) const;
    QString whatsThis(const QString& key) const;
    bool isContainer(const QString& key) const;
};

QStringList ZelkitPlugin::keys() const
{
    QStringList names;
    for (int i = 0; i < classCount; ++i)
        names.append(classes[i].name);
    return names;
}

QWidget* ZelkitPlugin::create(const QString& key, QWidget* parent, const char* name)
{
    const Class* found = find(key);
    return found ? found->make(parent, name) : 0;
}

QString ZelkitPlugin::group(const QString& key) const
{
    return find(key) ? QString("zelkit") : QString();
}

// A widget of the class is its own icon.
QIconSet ZelkitPlugin::iconSet(const QString& key) const
{
    const Class* found = find(key);
    if (!found)
        return QIconSet();
    const int size = 22;
    QWidget parent;
    QWidget* widget = found->make(&parent, "icon");
    widget->resize(size, size);
    return QIconSet(QPixmap::grabWidget(widget, 0, 0, size, size));
}

QString ZelkitPlugin::includeFile(const QString& key) const
{
    const Class* found = find(key);
    return found ? QString(found->header) : QString();
}

QString ZelkitPlugin::toolTip(const QString& key) const
{
    return find(key) ? key : QString();
}

QString ZelkitPlugin::whatsThis(const QString& key) const
{
    const Class* found = find(key);
    return found ? QString(found->brief) : QString();
}

bool ZelkitPlugin::isContainer(const QString& key) const
{
    const Class* found = find(key);
    return found && found->container;
}

Q_EXPORT_PLUGIN(ZelkitPlugin)
