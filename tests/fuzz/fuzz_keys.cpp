// Keys and their text, typed into every field of the library.
#include <zelcombobox.h>
#include <zellineedit.h>
#include <zellineeditint.h>

#include <qapplication.h>
#include <qclipboard.h>
#include <qevent.h>
#include <qlistbox.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace
{

struct Fields {
    QWidget window;
    ZelLineEdit edit;
    ZelLineEditInt number;
    ZelComboBox editable;
    ZelComboBox fixed;
    QListBox list;

    Fields()
        : edit(&window), number(&window, "number", -5, 1000), editable(true, &window), fixed(&window),
          list(&window)
    {
        for (const char* text : {"one", "two", "three"}) {
            editable.insertItem(text);
            fixed.insertItem(text);
            list.insertItem(text);
        }
        window.show();
    }
};

Fields* fields = nullptr;

// Three bytes of the input are a key: what it is, with which modifiers, what it says.
void type(QWidget* field, const std::uint8_t* bytes)
{
    static const int modifiers[] = {0, 0, Qt::ShiftButton, Qt::ControlButton, Qt::AltButton};
    const int key = bytes[0] < 128 ? bytes[0] : Qt::Key_Escape + (bytes[0] - 128);
    const int ascii = bytes[0] < 128 ? bytes[0] : 0;
    const QString text = bytes[2] < 128 ? QString(QChar(static_cast<char>(bytes[0])))
                         : bytes[2] < 200
                             ? QString(QChar(static_cast<unsigned short>(bytes[0] << 8 | bytes[2])))
                             : QString();
    QKeyEvent event(QEvent::KeyPress, key, ascii, modifiers[bytes[1] % 5], text);
    QApplication::sendEvent(field, &event);
}

void check(const QLineEdit* edit)
{
    const int length = static_cast<int>(edit->text().length());
    if (edit->cursorPosition() < 0 || edit->cursorPosition() > length)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    new QApplication(*argc, *argv);
    fields = new Fields;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QWidget* const all[] = {&fields->edit, &fields->number, &fields->editable, &fields->fixed, &fields->list};
    fields->edit.clear();
    fields->number.setText("7");
    fields->editable.setEditText("");
    for (std::size_t i = 0; i + 4 <= size; i += 4) {
        type(all[data[i] % 5], data + i + 1);
        check(&fields->edit);
        check(&fields->number);
    }
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->hide();
    while (fields->editable.count() > 20)
        fields->editable.removeItem(0);
    qApp->processEvents();
    return 0;
}
