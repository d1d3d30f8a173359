// Sequences of calls on every class: what the random program does, chosen by the bytes of the input.
#include "invariants.h"
#include "nestedsteps.h"
#include "messages.h"
#include "saboteur.h"
#include "world.h"
#include "xinput.h"

#include <qapplication.h>
#include <qfont.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    setenv("XMODIFIERS", "@im=none", 1);
    recordMessages();
    new QApplication(*argc, *argv);
    QApplication::setDoubleClickInterval(0);
    return 0;
}

// A step takes as many bytes as it has choices to make; at the end of the input the choices are all the
// first.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    World world;
    Saboteur saboteur(&world);
    world.saboteur = &saboteur;
    NestedSteps nestedSteps(world);
    world.random.takeFrom(data, size);
    for (int step = 0; step < 60 && world.random.hasMore(); ++step) {
        world.random.trace.clear();
        act(world);
        drain();
        const std::string broken = brokenInvariant(world);
        if (!broken.empty()) {
            std::fprintf(stderr, "BROKEN%s: %s\n", world.random.trace.c_str(), broken.c_str());
            std::abort();
        }
    }
    while (QWidget* widget = world.pick())
        delete widget;
    drain();
    xinput::releaseAll();
    testMessages().clear();
    return 0;
}
