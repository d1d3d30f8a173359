// What the meta-object compiler finds in a file.
#ifndef ZELTK_MOC_CLASSES_H
#define ZELTK_MOC_CLASSES_H

#include "token.h"

#include <string>
#include <vector>

namespace moc
{

enum class Access { Private, Protected, Public };

struct Argument {
    std::string type;       // as C++ wants it
    std::string normalized; // as signatures show it
};

// A signal, or a slot in one of its forms when some arguments have defaults.
struct Member {
    std::string name;
    std::vector<Argument> arguments;
    Access access;

    std::string signature() const;
};

struct Class {
    std::string name;                 // with the classes and namespaces around it
    std::string base;                 // the first one, a QObject
    std::vector<std::string> mixedIn; // other public bases
    bool hasMacro;                    // Q_OBJECT
    int line;
    std::vector<Member> signalList;
    std::vector<Member> slotList;
};

struct Warning {
    int line;
    std::string text;
};

struct Contents {
    std::vector<Class> classes; // those with Q_OBJECT
    std::vector<Warning> warnings;
};

Contents parse(const std::string& source);

// Tokens as text, with blanks only where two words would run together, or also between signs that must stay
// apart for C++.
std::string joined(const std::vector<Token>& tokens, bool forCompiler);

} // namespace moc

#endif
