// Finds the classes with Q_OBJECT, and their signals and slots.
#include "classes.h"
#include "function.h"

#include <algorithm>
#include <cctype>

namespace moc
{

namespace
{

bool isWordCharacter(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

class Parser
{
public:
    explicit Parser(const std::string& source) : tokens(tokenize(source)) {}

    Contents run()
    {
        while (at().kind != Token::End)
            readDeclaration("");
        return contents;
    }

private:
    enum class Section { Plain, Signals, Slots };

    const Token& at(size_t offset = 0) const { return tokens[std::min(place + offset, tokens.size() - 1)]; }
    void next()
    {
        if (place + 1 < tokens.size())
            ++place;
    }
    bool take(const char* text)
    {
        if (!at().is(text))
            return false;
        next();
        return true;
    }

    // One declaration at namespace level; `scope` ends with "::" unless it is empty.
    void readDeclaration(const std::string& scope)
    {
        if (at().is("namespace")) {
            readNamespace(scope);
        } else if (at().is("extern") && at(1).kind == Token::Literal && at(2).is("{")) {
            place += 3;
            readScope(scope, at(0).line);
        } else if (at().is("template")) {
            skipTemplate();
        } else if (at().is("class") || at().is("struct")) {
            readClass(scope);
        } else if (at().is("}")) {
            throw Error(at().line, "'}' without '{'");
        } else {
            skipStatement();
        }
    }

    void readScope(const std::string& scope, int line)
    {
        while (!at().is("}")) {
            if (at().kind == Token::End)
                throw Error(line, "the '}' of this '{' is missing");
            readDeclaration(scope);
        }
        next();
    }

    void readNamespace(const std::string& scope)
    {
        const int line = at().line;
        next();
        std::string name;
        while (at().kind == Token::Word || at().is("::")) {
            name += at().text;
            next();
        }
        if (!take("{")) {
            skipStatement();
            return;
        }
        readScope(name.empty() ? scope : scope + name + "::", line);
    }

    void skipTemplate()
    {
        next();
        skipBalanced("<", ">");
        const size_t before = contents.classes.size();
        if (at().is("class") || at().is("struct")) {
            const int line = at().line;
            readClass("");
            if (contents.classes.size() > before)
                throw Error(line, "a template class cannot have Q_OBJECT");
        } else if (at().is("template")) {
            skipTemplate();
        } else {
            skipStatement();
        }
    }

    void skipBalanced(const char* open, const char* close)
    {
        const int line = at().line;
        if (!take(open))
            return;
        for (int depth = 1; depth > 0; next()) {
            if (at().kind == Token::End)
                throw Error(line, std::string("the '") + close + "' of this '" + open + "' is missing");
            if (at().is("Q_OBJECT"))
                throw Error(at().line, "a class inside a function cannot have Q_OBJECT");
            depth += at().is(open) ? 1 : at().is(close) ? -1 : 0;
        }
    }

    // To the end of a declaration that is of no interest: behind its semicolon or its body.
    void skipStatement()
    {
        while (at().kind != Token::End) {
            if (take(";"))
                return;
            if (at().is("}"))
                return;
            if (at().is("(")) {
                skipBalanced("(", ")");
            } else if (at().is("{")) {
                skipBalanced("{", "}");
                take(";");
                return;
            } else if (take("operator")) {
                skipOperatorSigns();
            } else if (take("=")) {
                skipInitializer();
            } else {
                next();
            }
        }
    }

    // Up to the arguments.
    void skipOperatorSigns()
    {
        if (at().is("(") && at(1).is(")"))
            place += 2;
        while (at().kind == Token::Sign && !at().is("("))
            next();
    }

    void skipInitializer()
    {
        while (at().kind != Token::End && !at().is(";") && !at().is("}")) {
            if (at().is("{"))
                skipBalanced("{", "}");
            else if (at().is("("))
                skipBalanced("(", ")");
            else
                next();
        }
    }

    // The last word before the base classes or the body is the name; export macros stand before it.
    std::string readClassName()
    {
        std::string name;
        while (at().kind == Token::Word || at().is("::") || at().is("(") || at().is("[") || at().is("<")) {
            if (at().is("(")) {
                skipBalanced("(", ")");
            } else if (at().is("[")) {
                skipBalanced("[", "]");
            } else if (at().is("<")) {
                skipBalanced("<", ">");
            } else if (at().is("final") && (at(1).is(":") || at(1).is("{"))) {
                next();
            } else {
                const bool continued = at().is("::") || (!name.empty() && name.back() == ':');
                if (!continued)
                    name.clear();
                name += at().text;
                next();
            }
        }
        return name;
    }

    void readClass(const std::string& scope)
    {
        Class found;
        found.line = at().line;
        found.hasMacro = false;
        const Access access = at().is("struct") ? Access::Public : Access::Private;
        next();
        const std::string name = readClassName();
        if (!at().is(":") && !at().is("{")) {
            skipStatement(); // only named here, or used as a type
            return;
        }
        found.name = scope + name;
        if (take(":"))
            readBases(&found, access);
        if (!take("{"))
            throw Error(at().line, "'{' expected in the class " + found.name);
        readBody(&found, access);
        skipStatement(); // variables of the class may follow
        finish(found);
    }

    void readBases(Class* found, Access access)
    {
        do {
            Access baseAccess = access;
            std::vector<Token> base;
            while (!at().is("{") && !at().is(",")) {
                if (at().kind == Token::End || at().is(";"))
                    throw Error(found->line, "the class has no body");
                const size_t from = place;
                if (at().is("<"))
                    skipBalanced("<", ">");
                else
                    next();
                if (tokens[from].is("public"))
                    baseAccess = Access::Public;
                else if (tokens[from].is("protected") || tokens[from].is("private"))
                    baseAccess = Access::Private;
                else if (!tokens[from].is("virtual"))
                    base.insert(base.end(), tokens.begin() + static_cast<long>(from),
                                tokens.begin() + static_cast<long>(place));
            }
            if (found->base.empty())
                found->base = joined(base, true);
            else if (baseAccess == Access::Public)
                found->mixedIn.push_back(joined(base, true));
        } while (take(","));
    }

    void readBody(Class* found, Access access)
    {
        Section section = Section::Plain;
        while (!at().is("}")) {
            if (at().kind == Token::End)
                throw Error(found->line, "the '}' of the class " + found->name + " is missing");
            if (readSection(&section, &access))
                continue;
            if (take("Q_OBJECT"))
                found->hasMacro = true;
            else if (at().text.compare(0, 2, "Q_") == 0 && at(1).is("(") && at().kind == Token::Word)
                skipMacro();
            else if (at().is("class") || at().is("struct"))
                readClass(found->name + "::");
            else if (at().is("template"))
                skipTemplate();
            else if (section == Section::Plain || isOtherDeclaration())
                skipStatement();
            else if (!take(";"))
                readMember(found, section, access);
        }
        next();
    }

    void skipMacro()
    {
        next();
        skipBalanced("(", ")");
    }

    bool isOtherDeclaration() const
    {
        return at().is("enum") || at().is("typedef") || at().is("friend") || at().is("using") ||
               at().is("union");
    }

    // "public:", "private slots:", "signals:" and their like.
    bool readSection(Section* section, Access* access)
    {
        const Token& word = at();
        const bool isSignals = word.is("signals") || word.is("Q_SIGNALS");
        if (isSignals && at(1).is(":")) {
            *section = Section::Signals;
            *access = Access::Public;
            place += 2;
            return true;
        }
        if (!word.is("public") && !word.is("protected") && !word.is("private"))
            return false;
        const bool isSlots = at(1).is("slots") || at(1).is("Q_SLOTS");
        if (!at(isSlots ? 2 : 1).is(":")) {
            if (at(1).is("signals"))
                throw Error(word.line, "signals have no access of their own");
            throw Error(word.line, "':' expected behind " + word.text);
        }
        *section = isSlots ? Section::Slots : Section::Plain;
        *access = word.is("public")      ? Access::Public
                  : word.is("protected") ? Access::Protected
                                         : Access::Private;
        place += isSlots ? 3 : 2;
        return true;
    }

    void readMember(Class* found, Section section, Access access)
    {
        const size_t from = place;
        const int line = at().line;
        while (!at().is("(")) {
            if (at().kind == Token::End || at().is(";") || at().is("}") || at().is("{"))
                throw Error(line, section == Section::Signals ? "a signal is expected here"
                                                              : "a slot is expected here");
            next();
        }
        skipBalanced("(", ")");
        Function function;
        try {
            function = readFunction(std::vector<Token>(tokens.begin() + static_cast<long>(from),
                                                       tokens.begin() + static_cast<long>(place)));
        } catch (const Error& error) {
            throw Error(error.line ? error.line : line, error.what());
        }
        if (section == Section::Signals)
            addSignal(found, function, line);
        else
            addSlot(found, function, access);
        while (!at().is(";") && !at().is("{")) {
            if (at().kind == Token::End || at().is("}"))
                throw Error(line, "';' expected behind " + function.name);
            next();
        }
        if (at().is("{") && section == Section::Signals)
            throw Error(at().line, "a signal has no body of its own");
        skipStatement();
    }

    void addSignal(Class* found, const Function& function, int line)
    {
        if (function.returnType != "void")
            throw Error(line, "a signal returns void");
        if (function.defaults > 0)
            throw Error(line, "a signal's arguments cannot have default values");
        found->signalList.push_back({function.name, function.arguments, Access::Public});
    }

    // A slot whose last arguments have defaults stands for several, the shortest first.
    void addSlot(Class* found, const Function& function, Access access)
    {
        for (size_t left = function.defaults + 1; left-- > 0;) {
            const auto end = function.arguments.end() - static_cast<long>(left);
            found->slotList.push_back(
                {function.name, std::vector<Argument>(function.arguments.begin(), end), access});
        }
    }

    void finish(const Class& found)
    {
        if (!found.hasMacro) {
            if (!found.signalList.empty() || !found.slotList.empty())
                contents.warnings.push_back(
                    {found.line, "the class " + found.name + " has signals or slots, but no Q_OBJECT"});
            return;
        }
        if (found.base.empty())
            throw Error(found.line, "the class " + found.name + " has Q_OBJECT, but no base class");
        contents.classes.push_back(found);
    }

    std::vector<Token> tokens;
    size_t place = 0;
    Contents contents;
};

} // namespace

std::string joined(const std::vector<Token>& tokens, bool forCompiler)
{
    std::string text;
    for (const Token& token : tokens) {
        const bool words =
            !text.empty() && isWordCharacter(text.back()) && isWordCharacter(token.text.front());
        const bool angles = forCompiler && !text.empty() &&
                            ((text.back() == '>' && token.is(">")) || (text.back() == '<' && token.is("::")));
        text += words || angles ? " " + token.text : token.text;
    }
    return text;
}

std::string Member::signature() const
{
    std::string text = name + "(";
    for (size_t i = 0; i < arguments.size(); ++i)
        text += (i > 0 ? "," : "") + arguments[i].normalized;
    return text + ")";
}

Contents parse(const std::string& source)
{
    return Parser(source).run();
}

} // namespace moc
