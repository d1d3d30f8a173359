// The gallery: every class of the library in one window, with a line that tells each signal as it comes.
#include "gallerywindow.h"
#include "rows.h"
#include "tour.h"

#include <qapplication.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace
{

const char usage[] =
    "usage: zelkit-gallery [--tour FOLDER | --closeups FOLDER]\n"
    "Shows every class of zelkit; the line at the bottom tells each signal as it comes.\n"
    "  --tour FOLDER      move a real pointer over everything, write pictures into FOLDER, and end\n"
    "  --closeups FOLDER  the same, with pictures of the single widgets, each at rest too\n"
    "  --help             print this and end\n"
    "X options such as -display NAME are understood too.\n";

bool wantsHelp(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i)
        if (!std::strcmp(argv[i], "--help"))
            return true;
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    if (wantsHelp(argc, argv)) {
        std::fputs(usage, stdout);
        return 0;
    }
    QApplication application(argc, argv);

    // What the toolkit understands is gone from the arguments by now.
    std::string tourFolder;
    Tour::View view = Tour::Window;
    if (argc == 3 && (!std::strcmp(argv[1], "--tour") || !std::strcmp(argv[1], "--closeups"))) {
        tourFolder = argv[2];
        view = !std::strcmp(argv[1], "--tour") ? Tour::Window : Tour::Widget;
    } else if (argc != 1) {
        std::fprintf(stderr, "zelkit-gallery: cannot make sense of \"%s\"\n%s", argv[1], usage);
        return 2;
    }

    GalleryWindow window(tourFolder.empty());
    for (const AddRow addRow : galleryRows)
        addRow(window);
    window.finish();
    application.setMainWidget(&window);
    window.show();

    if (tourFolder.empty())
        return application.exec();
    Tour tour(window, tourFolder, view);
    if (!tour.start())
        return 1;
    application.exec();
    return tour.complete() ? 0 : 1;
}
