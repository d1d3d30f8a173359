// A child with size hints as a test wants them, and where the children of a widget are.
#ifndef TEST_LAYOUTKID_H
#define TEST_LAYOUTKID_H

#include <qlayout.h>
#include <qobjectlist.h>
#include <qwidget.h>

#include <string>

inline QSizePolicy policy(QSizePolicy::SizeType across, QSizePolicy::SizeType down)
{
    return QSizePolicy(across, down);
}

const QSizePolicy fixed = policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
const QSizePolicy preferred = policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
const QSizePolicy expanding = policy(QSizePolicy::Expanding, QSizePolicy::Expanding);

class Kid : public QWidget
{
public:
    Kid(QWidget* parent, const QSizePolicy& policy, const QSize& hint, const QSize& least = QSize(-1, -1),
        const char* name = nullptr)
        : QWidget(parent, name), m_hint(hint), m_least(least)
    {
        setSizePolicy(policy);
    }
    // Tells nobody.
    void setHint(const QSize& hint) { m_hint = hint; }
    QSize sizeHint() const override { return m_hint; }
    QSize minimumSizeHint() const override { return m_least; }

private:
    QSize m_hint;
    QSize m_least;
};

inline std::string text(const QRect& r)
{
    return std::to_string(r.x()) + "," + std::to_string(r.y()) + " " + std::to_string(r.width()) + "x" +
           std::to_string(r.height());
}

inline std::string text(const QSize& size)
{
    return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

// Of the children, in the order in which they were made; hidden ones have a star.
inline std::string places(const QWidget* widget)
{
    std::string result;
    const QObjectList* const all = widget->children();
    if (!all)
        return result;
    for (QObjectListIt it(*all); it.current(); ++it) {
        if (!it.current()->isWidgetType())
            continue;
        const QWidget* const child = static_cast<QWidget*>(it.current());
        result += (result.empty() ? "" : " | ") + text(child->geometry()) + (child->isHidden() ? "*" : "");
    }
    return result;
}

// Which sizes a layout asks for: "hint min max".
inline std::string sizes(const QLayout* layout)
{
    return text(layout->sizeHint()) + " " + text(layout->minimumSize()) + " " + text(layout->maximumSize());
}

#endif
