// The colours of widgets.
#ifndef QPALETTE_H
#define QPALETTE_H

#include <qbrush.h>
#include <qcolor.h>

namespace zeltk
{
struct PaletteData;
}

//! One brush for each role.
class Q_EXPORT QColorGroup : public Qt
{
public:
    enum ColorRole {
        Foreground,
        Button,
        Light,
        Midlight,
        Dark,
        Mid,
        Text,
        BrightText,
        ButtonText,
        Base,
        Background,
        Shadow,
        Highlight,
        HighlightedText,
        Link,
        LinkVisited,
        NColorRoles
    };

    //! Black roles without pattern.
    QColorGroup();
    //! The other roles are derived.
    QColorGroup(const QColor& foreground, const QColor& button, const QColor& light, const QColor& dark,
                const QColor& mid, const QColor& text, const QColor& base);
    QColorGroup(const QBrush& foreground, const QBrush& button, const QBrush& light, const QBrush& dark,
                const QBrush& mid, const QBrush& text, const QBrush& brightText, const QBrush& base,
                const QBrush& background);

    const QColor& color(ColorRole role) const { return brushes[role].color(); }
    const QBrush& brush(ColorRole role) const { return brushes[role]; }
    void setColor(ColorRole role, const QColor& color) { setBrush(role, QBrush(color)); }
    void setBrush(ColorRole role, const QBrush& brush) { brushes[role] = brush; }

    const QColor& foreground() const { return color(Foreground); }
    const QColor& button() const { return color(Button); }
    const QColor& light() const { return color(Light); }
    const QColor& dark() const { return color(Dark); }
    const QColor& mid() const { return color(Mid); }
    const QColor& text() const { return color(Text); }
    const QColor& base() const { return color(Base); }
    const QColor& background() const { return color(Background); }
    const QColor& midlight() const { return color(Midlight); }
    const QColor& brightText() const { return color(BrightText); }
    const QColor& buttonText() const { return color(ButtonText); }
    const QColor& shadow() const { return color(Shadow); }
    const QColor& highlight() const { return color(Highlight); }
    const QColor& highlightedText() const { return color(HighlightedText); }
    const QColor& link() const { return color(Link); }
    const QColor& linkVisited() const { return color(LinkVisited); }

    bool operator==(const QColorGroup& other) const;
    bool operator!=(const QColorGroup& other) const { return !(*this == other); }

private:
    ZELTK_LOCAL void derive();

    QBrush brushes[NColorRoles];
};

//! Three colour groups: of the active window, of other windows, of disabled widgets. Shared until changed.
class Q_EXPORT QPalette
{
public:
    enum ColorGroup { Disabled, Active, Inactive, NColorGroups, Normal = Active };

    QPalette();
    QPalette(const QColor& button);
    QPalette(const QColor& button, const QColor& background);
    QPalette(const QColorGroup& active, const QColorGroup& disabled, const QColorGroup& inactive);
    QPalette(const QPalette& other);
    ~QPalette();
    QPalette& operator=(const QPalette& other);

    const QColor& color(ColorGroup group, QColorGroup::ColorRole role) const;
    const QBrush& brush(ColorGroup group, QColorGroup::ColorRole role) const;
    void setColor(ColorGroup group, QColorGroup::ColorRole role, const QColor& color);
    void setBrush(ColorGroup group, QColorGroup::ColorRole role, const QBrush& brush);
    //! In all groups.
    void setColor(QColorGroup::ColorRole role, const QColor& color);
    void setBrush(QColorGroup::ColorRole role, const QBrush& brush);

    const QColorGroup& active() const;
    const QColorGroup& inactive() const;
    const QColorGroup& disabled() const;
    const QColorGroup& normal() const { return active(); }
    void setActive(const QColorGroup& group);
    void setInactive(const QColorGroup& group);
    void setDisabled(const QColorGroup& group);
    void setNormal(const QColorGroup& group) { setActive(group); }

    QPalette copy() const;
    bool operator==(const QPalette& other) const;
    bool operator!=(const QPalette& other) const { return !(*this == other); }
    bool isCopyOf(const QPalette& other) { return d == other.d; }
    int serialNumber() const;

    static QColorGroup::ColorRole foregroundRoleFromMode(Qt::BackgroundMode mode);
    static QColorGroup::ColorRole backgroundRoleFromMode(Qt::BackgroundMode mode);

private:
    void detach();

    zeltk::PaletteData* d;
};

#endif
