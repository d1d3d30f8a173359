// Reads the declaration of a signal or slot.
#include "function.h"

#include <algorithm>
#include <set>

namespace moc
{

namespace
{

const std::set<std::string> specifiers = {"virtual", "inline", "static", "explicit", "constexpr", "extern"};
const std::set<std::string> elaborations = {"const", "volatile", "struct",  "class",
                                            "enum",  "union",    "typename"};
const std::set<std::string> basicTypes = {"void",    "bool",     "char",     "short",  "int",
                                          "long",    "float",    "double",   "signed", "unsigned",
                                          "wchar_t", "char16_t", "char32_t", "auto"};

bool opens(const Token& token)
{
    return token.is("(") || token.is("[") || token.is("{") || token.is("<");
}

bool closes(const Token& token)
{
    return token.is(")") || token.is("]") || token.is("}") || token.is(">");
}

std::vector<std::vector<Token>> splitAtCommas(const std::vector<Token>& tokens)
{
    std::vector<std::vector<Token>> parts(1);
    int depth = 0;
    for (const Token& token : tokens) {
        depth += opens(token) ? 1 : closes(token) ? -1 : 0;
        if (token.is(",") && depth == 0)
            parts.emplace_back();
        else
            parts.back().push_back(token);
    }
    return parts;
}

// The argument's own name follows its type; a type alone ends with a sign or is all words of a type.
bool endsWithName(const std::vector<Token>& tokens)
{
    if (tokens.size() < 2 || tokens.back().kind != Token::Word)
        return false;
    const std::string& last = tokens.back().text;
    if (basicTypes.count(last) || elaborations.count(last) || tokens[tokens.size() - 2].is("::"))
        return false;
    return std::any_of(tokens.begin(), tokens.end() - 1,
                       [](const Token& token) { return !elaborations.count(token.text); });
}

Argument readArgument(std::vector<Token> tokens)
{
    if (endsWithName(tokens))
        tokens.pop_back();
    if (tokens.empty())
        throw Error(0, "an argument without a type");
    for (const Token& token : tokens)
        if (token.is("(") || token.is("[") || token.is("."))
            throw Error(token.line,
                        "arrays, functions and ellipses cannot be arguments of signals and slots");
    return {joined(tokens, true), joined(tokens, false)};
}

} // namespace

Function readFunction(const std::vector<Token>& tokens)
{
    const auto open =
        std::find_if(tokens.begin(), tokens.end(), [](const Token& token) { return token.is("("); });
    if (open == tokens.begin() || open == tokens.end() || (open - 1)->kind != Token::Word)
        throw Error(tokens.front().line, "a function is expected here");
    Function function;
    function.name = (open - 1)->text;
    std::vector<Token> returned;
    for (auto token = tokens.begin(); token != open - 1; ++token)
        if (!specifiers.count(token->text))
            returned.push_back(*token);
    if (returned.empty())
        throw Error(tokens.front().line, "a function with a return type is expected here");
    function.returnType = joined(returned, true);
    function.defaults = 0;

    const std::vector<Token> inside(open + 1, tokens.end() - 1);
    if (inside.empty() || (inside.size() == 1 && inside.front().is("void")))
        return function;
    for (const std::vector<Token>& part : splitAtCommas(inside)) {
        const auto assign =
            std::find_if(part.begin(), part.end(), [](const Token& token) { return token.is("="); });
        if (part.begin() == assign)
            throw Error((open - 1)->line, "an argument without a type");
        function.arguments.push_back(readArgument(std::vector<Token>(part.begin(), assign)));
        function.defaults += assign != part.end() ? 1 : 0;
    }
    return function;
}

} // namespace moc
