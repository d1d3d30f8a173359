// The meta-object compiler reads any text; it may refuse it, in words.
#include "classes.h"
#include "generator.h"

#include <cstdint>
#include <sstream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        const moc::Contents contents = moc::parse(std::string(reinterpret_cast<const char*>(data), size));
        std::ostringstream code;
        moc::generate(code, "input.h", "input.h", contents.classes);
    } catch (const moc::Error&) {
    }
    return 0;
}
