// Splits C++ source text into tokens.
#include "token.h"

#include <cctype>

namespace moc
{

namespace
{

bool startsWord(char c)
{
    return std::isalpha(static_cast<unsigned char>(c)) || c == '_' || c == '$';
}

bool continuesWord(char c)
{
    return startsWord(c) || std::isdigit(static_cast<unsigned char>(c));
}

class Lexer
{
public:
    explicit Lexer(const std::string& text) : source(text) {}

    std::vector<Token> run()
    {
        while (place < source.size())
            step();
        tokens.push_back({Token::End, "", line});
        return tokens;
    }

private:
    char at(size_t offset) const { return place + offset < source.size() ? source[place + offset] : '\0'; }

    void add(Token::Kind kind, size_t length, int startLine)
    {
        tokens.push_back({kind, source.substr(place, length), startLine});
        place += length;
        lineStart = false;
    }

    void step()
    {
        const char c = at(0);
        if (c == '\n') {
            ++line;
            ++place;
            lineStart = true;
        } else if (std::isspace(static_cast<unsigned char>(c))) {
            ++place;
        } else if (c == '\\' && (at(1) == '\n' || at(1) == '\r')) {
            ++place;
        } else if (c == '/' && at(1) == '/') {
            skipLine();
        } else if (c == '/' && at(1) == '*') {
            skipComment();
        } else if (c == '#' && lineStart) {
            skipDirective();
        } else if (startsWord(c)) {
            readWord();
        } else if (std::isdigit(static_cast<unsigned char>(c)) ||
                   (c == '.' && std::isdigit(static_cast<unsigned char>(at(1))))) {
            readNumber();
        } else if (c == '"' || c == '\'') {
            readLiteral(0);
        } else {
            add(Token::Sign, c == ':' && at(1) == ':' ? 2 : 1, line);
        }
    }

    // To the end of the line, and on where a backslash joins the next one.
    void skipLine()
    {
        while (place < source.size() && at(0) != '\n')
            skipCharacter();
    }

    // A comment in it may end on another line; what looks like one in a string does not count.
    void skipDirective()
    {
        while (place < source.size() && at(0) != '\n') {
            if (at(0) == '/' && at(1) == '/')
                skipLine();
            else if (at(0) == '/' && at(1) == '*')
                skipComment();
            else if (at(0) == '"')
                skipString();
            else
                skipCharacter();
        }
    }

    // One that does not end, as in the text of an #error, goes to the end of the line.
    void skipString()
    {
        ++place;
        while (place < source.size() && at(0) != '"' && at(0) != '\n') {
            if (at(0) == '\\' && (at(1) == '"' || at(1) == '\\'))
                ++place;
            skipCharacter();
        }
        if (at(0) == '"')
            ++place;
    }

    void skipCharacter()
    {
        if (const size_t length = joinLength(0)) {
            place += length;
            ++line;
        } else {
            ++place;
        }
    }

    // Of a backslash and the end of line behind it; 0 without.
    size_t joinLength(size_t offset) const
    {
        if (at(offset) != '\\')
            return 0;
        const size_t end = at(offset + 1) == '\r' ? 2 : 1;
        return at(offset + end) == '\n' ? end + 1 : 0;
    }

    void skipComment()
    {
        const int start = line;
        const size_t end = source.find("*/", place + 2);
        if (end == std::string::npos)
            throw Error(start, "the comment does not end");
        for (; place < end + 2; ++place)
            if (source[place] == '\n')
                ++line;
    }

    void readWord()
    {
        size_t length = 1;
        while (continuesWord(at(length)))
            ++length;
        const std::string word = source.substr(place, length);
        const bool prefix = word == "L" || word == "u" || word == "U" || word == "u8";
        const bool raw = word == "R" || word == "LR" || word == "uR" || word == "UR" || word == "u8R";
        if (raw && at(length) == '"')
            readRawString(length);
        else if (prefix && (at(length) == '"' || at(length) == '\''))
            readLiteral(length);
        else
            add(Token::Word, length, line);
    }

    void readNumber()
    {
        size_t length = 1;
        while (continuesWord(at(length)) || at(length) == '.' ||
               (at(length) == '\'' && continuesWord(at(length + 1))) ||
               ((at(length) == '+' || at(length) == '-') &&
                std::string("eEpP").find(at(length - 1)) != std::string::npos))
            ++length;
        add(Token::Number, length, line);
    }

    void readLiteral(size_t prefix)
    {
        const int start = line;
        const char quote = at(prefix);
        size_t length = prefix + 1;
        while (at(length) != quote) {
            if (at(length) == '\0' || at(length) == '\n')
                throw Error(line, quote == '"' ? "the string does not end" : "the character does not end");
            if (const size_t join = joinLength(length)) {
                length += join;
                ++line;
            } else {
                length += at(length) == '\\' ? 2 : 1;
            }
        }
        add(Token::Literal, length + 1, start);
    }

    void readRawString(size_t prefix)
    {
        const int start = line;
        const size_t open = source.find('(', place + prefix);
        if (open == std::string::npos)
            throw Error(start, "the string does not end");
        const std::string close = ")" + source.substr(place + prefix + 1, open - place - prefix - 1) + "\"";
        const size_t end = source.find(close, open);
        if (end == std::string::npos)
            throw Error(start, "the string does not end");
        for (size_t i = place; i < end; ++i)
            if (source[i] == '\n')
                ++line;
        add(Token::Literal, end + close.size() - place, start);
    }

    const std::string& source;
    size_t place = 0;
    int line = 1;
    bool lineStart = true;
    std::vector<Token> tokens;
};

} // namespace

std::vector<Token> tokenize(const std::string& source)
{
    return Lexer(source).run();
}

} // namespace moc
