// Words and signs of C++ source text.
#ifndef ZELTK_MOC_TOKEN_H
#define ZELTK_MOC_TOKEN_H

#include <stdexcept>
#include <string>
#include <vector>

namespace moc
{

struct Token {
    enum Kind { Word, Number, Literal, Sign, End };
    Kind kind;
    std::string text;
    int line;

    bool is(const char* t) const { return text == t && kind != Literal; }
};

// What cannot be read, and where.
class Error : public std::runtime_error
{
public:
    Error(int errorLine, const std::string& text) : std::runtime_error(text), line(errorLine) {}
    int line;
};

// Comments and preprocessor lines are left out. The last token is an End.
std::vector<Token> tokenize(const std::string& source);

} // namespace moc

#endif
