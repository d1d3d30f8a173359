#include "monitorwindow.h"
#include "panel.h"

#include <fontdlg.h>
#include <qcheckbox.h>
#include <qdatetime.h>
#include <qfont.h>
#include <qlayout.h>
#include <qpushbutton.h>

#include <chrono>

namespace
{

const int columnCount = 2;

long long steadyMilliseconds()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

// Until the next middle of a second by the clock on the wall. Graphs of rates reckon with whole seconds: a
// timer that is a little late then still comes in the second that is meant.
int untilMiddleOfSecond()
{
    return (1500 - QTime::currentTime().msec()) % 1000;
}

} // namespace

MonitorWindow::MonitorWindow(const std::string& folder) : QWidget(nullptr, "monitor"), m_interval(0)
{
    const struct {
        Panel::Looks looks;
        MakeMeter makeMeter;
    } panels[] = {
        {{"Processor (%)", false, QColor(80, 220, 80)}, makeProcessorMeter},
        {{"Memory (%)", false, QColor(80, 160, 255)}, makeMemoryMeter},
        {{"Network (KiB/s)", true, QColor(240, 190, 60)}, makeNetworkMeter},
        {{"Disks (% busy)", false, QColor(255, 110, 110)}, makeDiskMeter},
    };
    setCaption("zelkit monitor");
    QVBoxLayout* const lines = new QVBoxLayout(this, 10, 10);
    QHBoxLayout* const columns = new QHBoxLayout(14);
    lines->addLayout(columns, 1);
    QVBoxLayout* column[columnCount];
    for (QVBoxLayout*& each : column) {
        each = new QVBoxLayout(10);
        columns->addLayout(each, 1);
    }
    for (const auto& entry : panels) {
        Panel* const panel = new Panel(this, entry.looks);
        column[m_entries.size() % columnCount]->addWidget(panel, 1);
        m_entries.push_back({entry.makeMeter(folder, steadyMilliseconds()), panel});
    }
    QCheckBox* const bars = new QCheckBox("&Bars", this, "bars");
    connect(bars, SIGNAL(toggled(bool)), this, SLOT(setBars(bool)));
    QPushButton* const font = new QPushButton("Caption &font...", this, "font");
    connect(font, SIGNAL(clicked()), this, SLOT(chooseFont()));
    QHBoxLayout* const choices = new QHBoxLayout(lines);
    choices->addWidget(bars);
    choices->addStretch();
    choices->addWidget(font);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(sample()));
    resize(640, 400);
}

MonitorWindow::~MonitorWindow() {}

void MonitorWindow::run(int interval)
{
    m_interval = interval;
    QTimer::singleShot(interval < 1000 ? 0 : untilMiddleOfSecond(), this, SLOT(begin()));
}

void MonitorWindow::begin()
{
    m_timer.start(m_interval);
}

void MonitorWindow::sampleAt(long long now)
{
    for (const Entry& entry : m_entries)
        entry.panel->take(entry.meter->read(now));
}

void MonitorWindow::sample()
{
    sampleAt(steadyMilliseconds());
}

void MonitorWindow::setBars(bool bars)
{
    for (const Entry& entry : m_entries)
        entry.panel->setBars(bars);
}

// All captions have the same font.
void MonitorWindow::chooseFont()
{
    const QFont before = m_entries.front().panel->captionFont();
    ZelFontDlg dialog(this, "font dialog", true);
    dialog.setFontParameters(before.family().latin1(), before.pointSize(), before.weight(), before.italic(),
                             before.underline(), before.strikeOut());
    if (dialog.exec() != QDialog::Accepted)
        return;
    QFont font(dialog.getFontFamily(), dialog.getFontSize(), dialog.getFontWeight(), dialog.beFontItalic());
    font.setUnderline(dialog.beFontUnderline());
    font.setStrikeOut(dialog.beFontStrikeOut());
    for (const Entry& entry : m_entries)
        entry.panel->setCaptionFont(font);
}
