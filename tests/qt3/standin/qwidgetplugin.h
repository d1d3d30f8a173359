// Stands in for Qt 3's header, with the interface that its reference documents. Instead of a library's entry,
// a plugin gets a function that makes it.
#ifndef QWIDGETPLUGIN_H
#define QWIDGETPLUGIN_H

#include <qiconset.h>
#include <qstring.h>
#include <qstringlist.h>

class QWidget;

class QWidgetPlugin
{
public:
    virtual ~QWidgetPlugin() {}
    virtual QStringList keys() const = 0;
    virtual QWidget* create(const QString& key, QWidget* parent = 0, const char* name = 0) = 0;
    virtual QString group(const QString&) const { return QString(); }
    virtual QIconSet iconSet(const QString&) const { return QIconSet(); }
    virtual QString includeFile(const QString&) const { return QString(); }
    virtual QString toolTip(const QString&) const { return QString(); }
    virtual QString whatsThis(const QString&) const { return QString(); }
    virtual bool isContainer(const QString&) const { return false; }
};

QWidgetPlugin* newPlugin();

#define Q_EXPORT_PLUGIN(Plugin)                                                                              \
    QWidgetPlugin* newPlugin()                                                                               \
    {                                                                                                        \
        return new Plugin;                                                                                   \
    }

#endif
