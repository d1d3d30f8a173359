// What the monitor understands of the files in /proc, and what its meters make of them.
#include "examplemachine.h"
#include "meters.h"
#include "procfile.h"

#include <gtest/gtest.h>

namespace
{

std::string told(Meter& meter, long long now)
{
    const std::optional<Reading> reading = meter.read(now);
    return reading ? reading->text : "n/a";
}

TEST(ProcessorTimes, CountEverythingButIdlingAndWaiting)
{
    const auto times = processorTimes("cpu  10 20 30 400 50 6 7 8 9 1\ncpu0 1 1 1 1 1 1 1\nintr 5\n");
    ASSERT_TRUE(times);
    EXPECT_EQ(times->all, 531u);
    EXPECT_EQ(times->busy, 81u);
}

TEST(ProcessorTimes, OfOldKernelsAreFourNumbers)
{
    const auto times = processorTimes("cpu 1 2 3 4\n");
    ASSERT_TRUE(times);
    EXPECT_EQ(times->busy, 6u);
}

TEST(ProcessorTimes, AreNotGuessed)
{
    for (const char* text :
         {"", "cpu", "cpu ", "cpu  1 2 3\n", "cpu0 1 2 3 4 5 6 7\n", "cpu one two three four\n",
          "cpu  1 2 -3 4 5 6 7\n", "cpu  99999999999999999999999 1 1 1\n", "\n\n\n", "intr 1 2 3 4 5"})
        EXPECT_FALSE(processorTimes(text)) << text;
    EXPECT_FALSE(processorTimes(std::string("cpu \0 1 2 3 4", 14)));
}

TEST(MemoryUse, IsWhatIsNotAvailable)
{
    const auto use =
        memoryUse("MemTotal:  1000 kB\nMemFree:  100 kB\nMemAvailable:  700 kB\nBuffers:  50 kB\n");
    ASSERT_TRUE(use);
    EXPECT_EQ(use->used, 300u);
    EXPECT_EQ(use->all, 1000u);
}

TEST(MemoryUse, OfOldKernelsLeavesOutBuffersAndCaches)
{
    const auto use = memoryUse("MemTotal:  1000 kB\nMemFree:  100 kB\nBuffers:  50 kB\nCached: 350 kB\n");
    ASSERT_TRUE(use);
    EXPECT_EQ(use->used, 500u);
    EXPECT_EQ(memoryUse("MemTotal: 1000 kB\nMemFree: 5000 kB\n")->used, 0u) << "not below nothing";
}

TEST(MemoryUse, IsNotGuessed)
{
    for (const char* text :
         {"", "MemTotal: 1000 kB\n", "MemAvailable: 7 kB\n", "MemTotal: x\nMemAvailable: 7\n",
          "MemTotal: 0 kB\nMemAvailable: 0 kB\n", "MemTotal: -5 kB\nMemAvailable: 7 kB\n"})
        EXPECT_FALSE(memoryUse(text)) << text;
}

TEST(NetworkBytes, AreOfEveryInterfaceButTheLoopback)
{
    const auto bytes = networkBytes("Inter-|   Receive\n face |bytes    packets\n"
                                    "    lo: 5 1 0 0 0 0 0 0 5 1 0 0 0 0 0 0\n"
                                    "  eth0:100 1 0 0 0 0 0 0 20 1 0 0 0 0 0 0\n"
                                    "wlan0: 3000000000000 1 0 0 0 0 0 0 1 1 0 0 0 0 0 0\n");
    ASSERT_TRUE(bytes);
    EXPECT_EQ(*bytes, (Counters{{"eth0", 120}, {"wlan0", 3000000000001ull}}));
}

TEST(NetworkBytes, OfAMachineWithoutNetworkAreNone)
{
    const auto bytes = networkBytes("    lo: 5 1 0 0 0 0 0 0 5 1 0 0 0 0 0 0\n");
    ASSERT_TRUE(bytes);
    EXPECT_TRUE(bytes->empty());
}

TEST(NetworkBytes, AreNotGuessed)
{
    for (const char* text : {"", "nonsense", "Inter-| Receive\n face |bytes\n", "eth0: 1 2 3\n", ":",
                             "eth0:\n", "eth0: a b c d e f g h i j\n", "eth0: -1 1 0 0 0 0 0 0 5 1 0\n"})
        EXPECT_FALSE(networkBytes(text)) << text;
}

TEST(DiskMilliseconds, AreOfEachDisk)
{
    const auto work = diskMilliseconds("   8       0 sda 1 2 3 4 5 6 7 8 0 1234 99 1 2 3 4\n"
                                       "   8       1 sda1 9 9\n"
                                       " 259       0 nvme0n1 1 2 3 4 5 6 7 8 0 77 99\n");
    ASSERT_TRUE(work);
    EXPECT_EQ(*work, (Counters{{"sda", 1234}, {"nvme0n1", 77}}));
}

TEST(DiskMilliseconds, AreNotGuessed)
{
    for (const char* text : {"", "\n", "8 0\n", "8 0 sda\n", "8 0 sda a b c d e f g h i j k\n"})
        EXPECT_FALSE(diskMilliseconds(text)) << text;
}

TEST(FileText, IsNothingForWhatCannotBeRead)
{
    ExampleMachine machine;
    EXPECT_FALSE(fileText(machine.folder() + "/none"));
    EXPECT_FALSE(fileText(machine.folder())) << "a folder";
    machine.write("empty", "");
    EXPECT_EQ(fileText(machine.folder() + "/empty"), "");
    machine.write("long", std::string(3 << 20, 'x'));
    EXPECT_LE(fileText(machine.folder() + "/long")->size(), 2u << 20) << "no file fills the memory";
}

TEST(Meters, TellWhatHappenedSinceTheLastTime)
{
    ExampleMachine machine;
    const auto processor = makeProcessorMeter(machine.folder(), 1000);
    const auto memory = makeMemoryMeter(machine.folder(), 1000);
    const auto network = makeNetworkMeter(machine.folder(), 1000);
    const auto disk = makeDiskMeter(machine.folder(), 1000);
    machine.pass(2000, 0.25, 0.4, 10240, 0.75);
    EXPECT_EQ(told(*processor, 3000), "25 %");
    EXPECT_EQ(told(*memory, 3000), "40 %");
    EXPECT_EQ(told(*network, 3000), "5.0 KiB/s");
    EXPECT_EQ(told(*disk, 3000), "75 %");
    machine.pass(500, 1, 1, 0, 0);
    EXPECT_EQ(told(*processor, 3500), "100 %");
    EXPECT_EQ(told(*memory, 3500), "100 %");
    EXPECT_EQ(told(*network, 3500), "0 B/s");
    EXPECT_EQ(told(*disk, 3500), "0 %");
}

TEST(Meters, GoOnAfterAFileWasAway)
{
    ExampleMachine machine;
    const auto network = makeNetworkMeter(machine.folder(), 0);
    machine.remove("net/dev");
    EXPECT_EQ(told(*network, 1000), "n/a");
    EXPECT_EQ(told(*network, 2000), "n/a");
    machine.pass(4000, 0, 0, 2000, 0);
    EXPECT_EQ(told(*network, 4000), "500 B/s") << "over the four seconds";
}

TEST(Meters, BeginWithTheSecondReadingWhereTheFirstIsMissing)
{
    ExampleMachine machine;
    machine.remove("stat");
    const auto processor = makeProcessorMeter(machine.folder(), 0);
    EXPECT_EQ(told(*processor, 1000), "n/a");
    machine.pass(1000, 1, 0, 0, 0);
    EXPECT_EQ(told(*processor, 2000), "n/a");
    machine.pass(1000, 0.5, 0, 0, 0);
    EXPECT_EQ(told(*processor, 3000), "50 %");
}

TEST(Meters, OfAMissingFolderTellNothing)
{
    for (const MakeMeter make : {makeProcessorMeter, makeMemoryMeter, makeNetworkMeter, makeDiskMeter}) {
        const auto meter = make("/no/such/folder", 0);
        EXPECT_EQ(told(*meter, 1000), "n/a");
    }
}

TEST(Meters, SurviveCountersThatGoBack)
{
    ExampleMachine machine;
    const auto processor = makeProcessorMeter(machine.folder(), 0);
    const auto network = makeNetworkMeter(machine.folder(), 0);
    const auto disk = makeDiskMeter(machine.folder(), 0);
    machine.pass(-500, 1, 0, -3000, 1);
    EXPECT_EQ(told(*processor, 1000), "0 %");
    EXPECT_EQ(told(*network, 1000), "0 B/s");
    EXPECT_EQ(told(*disk, 1000), "0 %");
}

TEST(Meters, CountNothingForAnInterfaceThatIsNew)
{
    ExampleMachine machine;
    const auto network = makeNetworkMeter(machine.folder(), 0);
    machine.write("net/dev", "tun0: 900000 1 0 0 0 0 0 0 900000 1 0\n");
    EXPECT_EQ(told(*network, 1000), "0 B/s");
    machine.write("net/dev", "tun0: 900100 1 0 0 0 0 0 0 900000 1 0\n");
    EXPECT_EQ(told(*network, 2000), "100 B/s");
}

TEST(Meters, UseTheUnitThatIsReadable)
{
    ExampleMachine machine;
    const auto network = makeNetworkMeter(machine.folder(), 0);
    const struct {
        long long bytes;
        const char* text;
    } rates[] = {{999, "999 B/s"},
                 {1000, "1.0 KiB/s"},
                 {20480, "20 KiB/s"},
                 {5 << 20, "5.0 MiB/s"},
                 {300 << 20, "300 MiB/s"},
                 {12LL << 30, "12 GiB/s"},
                 {5000LL << 30, "5000 GiB/s"}};
    long long now = 0;
    for (const auto& rate : rates) {
        machine.pass(1000, 0, 0, rate.bytes, 0);
        EXPECT_EQ(told(*network, now += 1000), rate.text);
    }
}

TEST(Meters, NeverDivideByNoTime)
{
    ExampleMachine machine;
    const auto network = makeNetworkMeter(machine.folder(), 500);
    const auto disk = makeDiskMeter(machine.folder(), 500);
    machine.pass(1, 1, 1, 10, 1);
    EXPECT_EQ(told(*network, 500), "9.8 KiB/s");
    EXPECT_EQ(told(*disk, 500), "100 %");
}

} // namespace
