// ZelGraph against its model: whatever is done in whatever order, every pixel is as it must be.
#include "faketime.h"
#include "graphpair.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>

namespace
{

// The numbers of a seed, the same on every machine.
class Dice
{
public:
    explicit Dice(unsigned seed) : m_numbers(seed) {}
    // One of 0 to count - 1.
    int of(int count) { return static_cast<int>(m_numbers() % static_cast<unsigned>(count)); }
    bool chance(int percent) { return of(100) < percent; }
    QColor colour() { return QColor(of(256), of(256), of(256)); }
    // Mostly small ones, sometimes the largest there are.
    int value()
    {
        const int extremes[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, INT_MAX - 1, INT_MAX};
        return chance(5) ? extremes[of(7)] : of(40) - 15;
    }

private:
    std::mt19937 m_numbers;
};

std::string feed(GraphPair& pair, Dice& dice, int samples)
{
    for (int i = 0; i < samples; ++i)
        pair.setValue(dice.value());
    return "samples";
}

std::string changeParameters(GraphPair& pair, Dice& dice)
{
    const int gridCounts[] = {-1, 0, -7, 1, 3, 10, 1000, INT_MIN, INT_MAX};
    const int gridSteps[] = {-1, 1, 2, 7, 10, 5000, INT_MAX};
    pair.setGraphParameters(dice.value(), dice.value(), gridCounts[dice.of(9)], gridSteps[dice.of(7)],
                            dice.chance(50), dice.chance(40), dice.chance(40), dice.colour(), dice.colour(),
                            dice.colour());
    return "parameters";
}

std::string changeShape(GraphPair& pair, Dice& dice)
{
    const int styles[] = {QFrame::NoFrame, QFrame::Panel | QFrame::Sunken, QFrame::Box | QFrame::Plain,
                          QFrame::WinPanel | QFrame::Raised, QFrame::Box | QFrame::Sunken};
    if (dice.chance(50)) {
        pair.setFrame(styles[dice.of(5)], dice.of(4));
        return "frame";
    }
    pair.resize(1 + dice.of(60), 1 + dice.of(50));
    return "size";
}

std::string movePointer(GraphPair& pair, Dice& dice)
{
    const int y = dice.of(80) - 15;
    switch (dice.of(3)) {
    case 0:
        pair.press(y);
        return "press";
    case 1:
        pair.drag(y);
        return "drag";
    default:
        pair.release();
        return "release";
    }
}

// Does one thing and tells which.
std::string act(GraphPair& pair, Dice& dice, FakeTime& clock)
{
    switch (dice.of(12)) {
    case 0:
        return changeParameters(pair, dice);
    case 1:
        pair.setMinY(dice.value());
        return "minimum";
    case 2:
        pair.setMaxY(dice.value());
        return "maximum";
    case 3:
        pair.clearAll();
        return "clear";
    case 4:
        return changeShape(pair, dice);
    case 5:
    case 6:
        return movePointer(pair, dice);
    case 7:
        clock.advance(dice.of(9) - 3);
        return feed(pair, dice, 1);
    default:
        return feed(pair, dice, dice.chance(20) ? dice.of(80) : 1 + dice.of(4));
    }
}

} // namespace

class RandomGraph : public testing::TestWithParam<unsigned>
{
};

TEST_P(RandomGraph, LooksAsItsModelAfterEveryStep)
{
    Dice dice(GetParam());
    FakeTime clock(1000);
    GraphPair pair(2 + dice.of(70), 2 + dice.of(60));
    std::string story;
    for (int step = 0; step < 120; ++step) {
        story += act(pair, dice, clock) + " ";
        ASSERT_EQ(pair.difference(), "") << "after " << story;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomGraph, testing::Range(1U, 25U));
