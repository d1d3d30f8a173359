// What a list box keeps.
#ifndef ZELTK_LISTBOXDATA_H
#define ZELTK_LISTBOXDATA_H

#include <qdatetime.h>
#include <qlistbox.h>

#include <vector>

namespace zeltk
{

struct ListBoxData {
    std::vector<QListBoxItem*> items;
    QListBoxItem* current = nullptr;
    QListBoxItem* pressed = nullptr; // where the button went down
    QListBox::SelectionMode mode = QListBox::Single;
    bool dragging = false;
    QString typed; // to look for an entry
    QTime typedAt;
};

} // namespace zeltk

#endif
