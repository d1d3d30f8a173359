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
    const std::vector<QTranslator*>& translators = application()->translators;
    for (size_t i = translators.size(); i-- > 0;) {
        if (i >= translators.size())
            continue; // one of the program's own has removed some when it was asked
        const QString found = translators[i]->findMessage(context, key, comment).translation();
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
    std::vector<QTranslator*>& translators = application()->translators;
    const auto rest = std::remove(translators.begin(), translators.end(), translator);
    if (rest == translators.end())
        return;
    translators.erase(rest, translators.end());
    tellLanguageChange();
}
