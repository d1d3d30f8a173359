// Two fields that get the same keys and are compared after each.
#ifndef TEST_KEYTWINS_H
#define TEST_KEYTWINS_H

#include "sentevents.h"

#include <qlineedit.h>

#include <sstream>
#include <string>
#include <vector>

struct SentKey {
    int key;
    int ascii;
    int state;
    QString text;
};

inline std::ostream& operator<<(std::ostream& out, const SentKey& key)
{
    return out << "key 0x" << std::hex << key.key << " ascii " << std::dec << key.ascii << " state 0x"
               << std::hex << key.state << std::dec;
}

// All keys that a keyboard has, alone and with the modifiers.
inline std::vector<SentKey> everyKey()
{
    std::vector<SentKey> keys;
    const int states[] = {0, Qt::ShiftButton, Qt::ControlButton, Qt::AltButton,
                          Qt::ControlButton | Qt::ShiftButton};
    for (const int state : states) {
        const bool control = (state & Qt::ControlButton) != 0;
        for (int key = Qt::Key_Space; key <= 0x7e; ++key) {
            const bool letter = key >= 'A' && key <= 'Z';
            const int plain = letter && !(state & Qt::ShiftButton) ? key + 32 : key;
            const int ascii = control ? (letter ? key - 64 : 0) : plain;
            keys.push_back({key, ascii, state, ascii ? QString(QChar(static_cast<char>(ascii))) : QString()});
        }
        for (int key = Qt::Key_Escape; key <= Qt::Key_Direction_R; ++key)
            keys.push_back({key, 0, state, QString()});
    }
    return keys;
}

// What a field shows of itself.
inline std::string stateOf(const QLineEdit& edit)
{
    std::ostringstream out;
    out << '"' << std::string(edit.text().utf8().data()) << "\" cursor " << edit.cursorPosition();
    if (edit.hasSelectedText())
        out << " marked " << edit.selectionStart() << " \"" << edit.selectedText().latin1() << '"';
    return out.str();
}

inline bool send(QWidget* widget, const SentKey& key)
{
    return sendKey(widget, key.key, key.ascii, key.state, key.text);
}

#endif
