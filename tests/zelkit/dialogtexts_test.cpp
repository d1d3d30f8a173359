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
#include <regex>
#include <string>

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

Listed listed(const std::string& dialog)
{
    Listed result;
    std::ifstream page(ZELKIT_DOCS "/texts.md");
    const std::regex heading("## (\\w+), \"(.*)\""), row("\\| `(\\w+)` \\| (\\w+) \\| (.*) \\|");
    std::string section;
    std::smatch words;
    for (std::string line; std::getline(page, line);) {
        if (std::regex_match(line, words, heading)) {
            section = words[1];
            if (section == dialog)
                result.caption = words[2];
        } else if (section == dialog && std::regex_match(line, words, row)) {
            result.parts[words[1]] = words[2].str() + ": " + words[3].str();
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
