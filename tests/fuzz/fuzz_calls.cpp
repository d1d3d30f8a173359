// Sequences of calls on every class: what the random program does without its hands, chosen by the bytes of
// the input.
#include "clock.h"
#include "invariants.h"
#include "nestedsteps.h"
#include "messages.h"
#include "saboteur.h"
#include "witness.h"
#include "world.h"

#include <qapplication.h>
#include <qfont.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

// The server is asked once for each input, not after each step.
void drain()
{
    qApp->processEvents();
}

const std::vector<Action> inputActions;

static void check(World& world)
{
    const std::string broken = brokenInvariant(world);
    if (broken.empty())
        return;
    std::fprintf(stderr, "BROKEN%s: %s\n", world.random.trace.c_str(), broken.c_str());
    std::abort();
}

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
    Witness witness;
    world.witness = &witness;
    Saboteur saboteur(&world);
    world.saboteur = &saboteur;
    NestedSteps nestedSteps(world);
    world.random.takeFrom(data, size);
    for (int step = 0; step < 60 && world.random.hasMore(); ++step) {
        world.random.trace.clear();
        monkeyclock::advance(10);
        act(world);
        drain();
        check(world);
    }
    while (QWidget* widget = world.pick())
        delete widget;
    QApplication::syncX();
    drain();
    check(world);
    return 0;
}
