// The part of a scroll view where the contents are seen.
#ifndef ZELTK_VIEWPORTWIDGET_H
#define ZELTK_VIEWPORTWIDGET_H

#include <qscrollview.h>

class QViewportWidget : public QWidget
{
    Q_OBJECT

public:
    QViewportWidget(QScrollView* view) : QWidget(view, "qt_viewport", WStaticContents) {}
};

#endif
