// ZelLineEdit, ZelComboBox and ZelLineEditInt.
#include "gallerywindow.h"
#include "rows.h"

#include <zelcombobox.h>
#include <zellineedit.h>
#include <zellineeditint.h>

void addFieldRow(GalleryWindow& gallery)
{
    QWidget* const row = gallery.addRow("ZelLineEdit, ZelComboBox, ZelLineEditInt", 28);
    ZelLineEdit* const edit = new ZelLineEdit(row, "Text");
    edit->setText("Some text");
    edit->setGeometry(0, 0, 140, 28);
    gallery.watch(edit, SIGNAL(escapePressed()));
    gallery.watch(edit, SIGNAL(focusOut()));

    ZelComboBox* const box = new ZelComboBox(true, row, "Choice");
    for (const char* item : {"Hamburg", "Lyon", "Porto"})
        box->insertItem(item);
    box->setGeometry(150, 0, 140, 28);
    gallery.watch(box, SIGNAL(escapePressed()));
    gallery.watch(box, SIGNAL(activated(int)));

    ZelLineEditInt* const number = new ZelLineEditInt(row, "Number", 0, 255);
    number->setText("128");
    number->setGeometry(300, 0, 70, 28);
    gallery.watch(number, SIGNAL(valueChanged(int)));
}
