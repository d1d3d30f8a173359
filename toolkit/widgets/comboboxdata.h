// What a combo box keeps.
#ifndef ZELTK_COMBOBOXDATA_H
#define ZELTK_COMBOBOXDATA_H

#include <qcombobox.h>
#include <qlineedit.h>
#include <qlistbox.h>

#include <limits.h>

namespace zeltk
{

struct ComboBoxData {
    QListBox* list = nullptr;
    bool listIsSeen = true; // by the program
    QLineEdit* edit = nullptr;
    int current = 0;
    int sizeLimit = 10;
    int maxCount = INT_MAX;
    QComboBox::Policy policy = QComboBox::AtBottom;
    bool completes = false;
    bool duplicates = true;
    bool autoResize = false;

    bool open = false;
    bool visited = false; // the pointer was in the open list with the button held down

    bool completeNow = false; // after a key
    int completeAt = 0;       // where the cursor was before it
};

} // namespace zeltk

#endif
