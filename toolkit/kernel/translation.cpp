// QApplication: texts in the user's language.
#include "kernel/applicationdata.h"
#include "kernel/widgetdata.h"

#include <qapplication.h>
#include <qmetaobject.h>
#include <qtranslator.h>

#include <algorithm>

using zeltk::application;

namespace
{

QString decoded(const char* text, bool utf8)
{
    return utf8 ? QString::fromUtf8(text) : QString(text);
}

// Several changes in a row become one.
void tellLanguageChange()
{
    QApplication::postEvent(qApp, new QEvent(QEvent::LanguageChange));
}

} // namespace

namespace zeltk
{

QString translated(const QMetaObject* context, const char* text, const char* comment, bool utf8)
{
    if (!qApp)
        return decoded(text, utf8);
    return qApp->translate(context->className(), text, comment,
                           utf8 ? QApplication::UnicodeUTF8 : QApplication::DefaultCodec);
}

// Each window passes it on to its children.
void tellWindowsOfLanguage()
{
    for (QWidget* widget : everyWidget())
        if (widget->isTopLevel())
            QApplication::postEvent(widget, new QEvent(QEvent::LanguageChange));
}

} // namespace zeltk

QString QApplication::translate(const char* context, const char* key, const char* comment,
                                Encoding encoding) const
{
    if (!key)
        return QString::null;
    const std::vector<QGuardedPtr<QTranslator>>& translators = application()->translators;
    for (auto it = translators.rbegin(); it != translators.rend(); ++it) {
        if (it->isNull())
            continue;
        const QString found = (*it)->findMessage(context, key, comment).translation();
        if (!found.isNull())
            return found;
    }
    return decoded(key, encoding == UnicodeUTF8);
}

void QApplication::installTranslator(QTranslator* translator)
{
    if (!translator)
        return;
    application()->translators.push_back(translator);
    tellLanguageChange();
}

// However often it was installed.
void QApplication::removeTranslator(QTranslator* translator)
{
    std::vector<QGuardedPtr<QTranslator>>& translators = application()->translators;
    const auto rest = std::remove_if(
        translators.begin(), translators.end(), [translator](const QGuardedPtr<QTranslator>& installed) {
            return installed.isNull() || static_cast<QTranslator*>(installed) == translator;
        });
    if (!translator || rest == translators.end())
        return;
    translators.erase(rest, translators.end());
    tellLanguageChange();
}
