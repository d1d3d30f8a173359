// Reads the declaration of a signal or slot.
#ifndef ZELTK_MOC_FUNCTION_H
#define ZELTK_MOC_FUNCTION_H

#include "classes.h"

namespace moc
{

struct Function {
    std::string name;
    std::string returnType;
    std::vector<Argument> arguments;
    size_t defaults; // how many of the last arguments have default values
};

// `tokens` reach from the first word of the declaration to the closing parenthesis of its arguments.
Function readFunction(const std::vector<Token>& tokens);

} // namespace moc

#endif
