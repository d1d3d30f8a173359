// The monkey: plays with the library at random, the same way each time for the same seed.
#include "clock.h"
#include "faketime.h"
#include "invariants.h"
#include "killing.h"
#include "messages.h"
#include "nestedsteps.h"
#include "options.h"
#include "saboteur.h"
#include "shrink.h"
#include "watchdog.h"
#include "witness.h"
#include "world.h"
#include "xinput.h"

#include <qapplication.h>
#include <qfont.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace
{

// Counts the events that reach widgets.
class EventCounter : public QObject
{
public:
    EventCounter() { qApp->installEventFilter(this); }
    long count = 0;

protected:
    bool eventFilter(QObject* receiver, QEvent*) override
    {
        count += receiver->isWidgetType();
        return false;
    }
};

// What is printed when a step fails, in whatever way.
std::string report;

void describe(const Options& options, int step)
{
    report = "monkey: seed " + std::to_string(options.seed) + ", step " + std::to_string(step) + "\n";
}

// Steps have numbers of their own, so that leaving some out does not change the others.
std::uint64_t seedOf(const Options& options, int step)
{
    Random mixer(static_cast<std::uint64_t>(options.seed) << 32 | static_cast<std::uint32_t>(step));
    return mixer.next();
}

bool takeStep(const Options& options, World& world, FakeTime& wallClock, int step)
{
    watchdog::step();
    describe(options, step);
    world.random = Random(seedOf(options, step));
    act(world);
    drain();
    monkeyclock::advance(10);
    wallClock.advance(world.random.chance(5) ? 1 : 0);
    if (options.verbose)
        std::fprintf(stderr, "%d%s\n", step, world.random.trace.c_str());
    std::string broken = brokenInvariant(world);
    if (broken.empty() && step % 16 == 0 && options.killedAfter == 0)
        broken = differenceFromServer();
    if (broken.empty())
        return true;
    std::fprintf(stderr, "%smonkey:%s\nmonkey: BROKEN, %s\n", report.c_str(), world.random.trace.c_str(),
                 broken.c_str());
    return false;
}

int play(const Options& options)
{
    EventCounter events;
    World world;
    Witness witness;
    world.witness = &witness;
    Saboteur saboteur(&world);
    world.saboteur = &saboteur;
    NestedSteps nestedSteps(world);
    FakeTime wallClock(1000000);
    const QWidget hidden(nullptr, "hidden");
    if (options.killedAfter > 0)
        killOwnerLater(hidden.winId(), options.killedAfter);
    watchdog::start(&report, &world.random.trace);
    for (const int step : options.steps)
        if (!takeStep(options, world, wallClock, step))
            return 1;
    while (QWidget* widget = world.pick())
        delete widget;
    drain();
    std::printf("monkey: seed %d, %zu steps, %ld events, nothing broken\n", options.seed,
                options.steps.size(), events.count);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    Options options;
    if (!readOptions(argc, argv, &options))
        return 2;
    if (options.shrink)
        return shrink(argv[0], options);
    if (options.kills > 0)
        return playKilledGames(argv[0], options.kills);
    setenv("FONTCONFIG_FILE", TEST_FONTS_CONF, 0);
    setenv("XMODIFIERS", "@im=none", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    setlocale(LC_ALL, "");
    recordMessages();
    xinput::park();
    int plain = 1;
    QApplication application(plain, argv);
    QApplication::setFont(QFont("DejaVu Sans", 10), true);
    QApplication::setDoubleClickInterval(0);
    const int result = play(options);
    xinput::releaseAll();
    xinput::disconnect();
    return result;
}
