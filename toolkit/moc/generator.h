// Writes the code behind Q_OBJECT.
#ifndef ZELTK_MOC_GENERATOR_H
#define ZELTK_MOC_GENERATOR_H

#include "classes.h"

#include <ostream>

namespace moc
{

// `include` is the header to include, empty for code that a source includes itself.
void generate(std::ostream& out, const std::string& inputName, const std::string& include,
              const std::vector<Class>& classes);

} // namespace moc

#endif
