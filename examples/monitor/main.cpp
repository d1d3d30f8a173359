// The monitor: how busy the machine is, as strip charts that move on by themselves.
#include "monitorwindow.h"
#include "options.h"

#include <qapplication.h>
#include <qtimer.h>

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace
{

bool wantsHelp(int argc, char** argv)
{
    return std::any_of(argv, argv + argc, [](const char* word) { return !std::strcmp(word, "--help"); });
}

} // namespace

int main(int argc, char** argv)
{
    if (wantsHelp(argc, argv)) {
        std::fputs(usageText, stdout);
        return 0;
    }
    QApplication application(argc, argv);

    // What the toolkit understands is gone from the arguments by now.
    Options options;
    const std::string mistake = readOptions({argv + 1, argv + argc}, options);
    if (!mistake.empty()) {
        std::fprintf(stderr, "zelkit-monitor: %s; --help tells how it is called\n", mistake.c_str());
        return 2;
    }

    MonitorWindow window(options.folder);
    application.setMainWidget(&window);
    window.show();

    window.run(options.interval);
    if (options.seconds > 0)
        QTimer::singleShot(options.seconds * 1000, &application, SLOT(quit()));
    return application.exec();
}
