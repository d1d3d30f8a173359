// Applications replace the texts of the dialogs through the names that docs/texts.md lists.
#include <colordlg.h>
#include <colorgroupdlg.h>
#include <fontdlg.h>

#include <qbutton.h>
#include <qlabel.h>
#include <qobjectlist.h>

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace
{

std::string textOf(QObject* part)
{
    if (part->inherits("QLabel"))
        return static_cast<QLabel*>(part)->text().latin1();
    if (part->inherits("QButton"))
        return static_cast<QButton*>(part)->text().latin1();
    return "";
}

// What the page says of a dialog: its caption, and for each part "CLASS: TEXT".
struct Listed {
    std::string caption;
    std::map<std::string, std::string> parts;
};

// "| `REdit` | QLabel | Red |" in its three parts, without the marks; empty if it is no row of the table.
std::vector<std::string> cells(const std::string& line)
{
    std::vector<std::string> result;
    for (size_t start = line.find("| "); start != std::string::npos && start + 2 < line.size();) {
        const size_t end = line.find(" |", start + 2);
        if (end == std::string::npos)
            break;
        result.push_back(line.substr(start + 2, end - start - 2));
        start = end + 1;
    }
    if (result.size() != 3 || result[0].size() < 3 || result[0].front() != '`' || result[0].back() != '`')
        return {};
    result[0] = result[0].substr(1, result[0].size() - 2);
    return result;
}

// Reads the section of the dialog: a heading, ## ZelColorDlg, "Choose color", and the table below it.
Listed listed(const std::string& dialog)
{
    Listed result;
    std::ifstream page(ZELKIT_DOCS "/texts.md");
    const std::string heading = "## " + dialog + ", \"";
    bool here = false;
    for (std::string line; std::getline(page, line);) {
        if (line.compare(0, 3, "## ") == 0) {
            here = line.compare(0, heading.size(), heading) == 0;
            if (here)
                result.caption = line.substr(heading.size(), line.size() - heading.size() - 1);
        } else if (here) {
            const std::vector<std::string> row = cells(line);
            if (!row.empty())
                result.parts[row[0]] = row[1] + ": " + row[2];
        }
    }
    return result;
}

void expectAsListed(QDialog& dialog)
{
    const Listed expected = listed(dialog.className());
    EXPECT_EQ(dialog.caption().latin1(), expected.caption);
    std::map<std::string, std::string> found;
    QObjectList* const children = dialog.queryList("QWidget", 0, false, false);
    for (QObjectListIt it(*children); it.current(); ++it)
        if (!textOf(it.current()).empty())
            found[it.current()->name()] =
                std::string(it.current()->className()) + ": " + textOf(it.current());
    delete children;
    EXPECT_EQ(found, expected.parts);
}

} // namespace

TEST(DialogTexts, ColourDialogHasTheListedParts)
{
    ZelColorDlg dialog;
    expectAsListed(dialog);
}

TEST(DialogTexts, ColourGroupDialogHasTheListedParts)
{
    ZelColorGroupDlg dialog;
    expectAsListed(dialog);
}

TEST(DialogTexts, FontDialogHasTheListedParts)
{
    ZelFontDlg dialog;
    expectAsListed(dialog);
}
