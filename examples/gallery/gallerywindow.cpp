#include "gallerywindow.h"

#include <qapplication.h>
#include <qdesktopwidget.h>
#include <qfont.h>
#include <qlabel.h>
#include <qobjectlist.h>

#include <algorithm>

namespace
{
const int margin = 12;
const int headingHeight = 22;
const int rowWidth = 460;
const int columnHeight = 560;
const int statusHeight = 26;
const char sample[] = "Choose colours"; // all of the above suits letters with which this is so wide
const int sampleWidth = 128;

// The rows are plain widgets, and what stands in them is placed by hand too.
void enlargeChildren(QWidget* parent, double factor)
{
    QObjectListIterator each(*parent->children());
    for (QObject* object = each.current(); object; object = ++each) {
        if (!object->isWidgetType())
            continue;
        QWidget* const child = static_cast<QWidget*>(object);
        const QRect place = child->geometry();
        child->setGeometry(qRound(place.x() * factor), qRound(place.y() * factor),
                           qRound(place.width() * factor), qRound(place.height() * factor));
        if (child->isA("QWidget") && child->children())
            enlargeChildren(child, factor);
    }
}
} // namespace

SignalTeller::SignalTeller(QObject* sender, const char* signal, QLabel* line)
    : QObject(sender), m_text(QString(sender->className()) + " \"" + sender->name() + "\": " + (signal + 1)),
      m_line(line)
{
    connect(sender, signal, this, SLOT(tell()));
}

void SignalTeller::tell()
{
    m_line->setText(m_text);
}

GalleryWindow::GalleryWindow(bool moving)
    : QWidget(0, "gallery"), m_moving(moving), m_status(new QLabel(this, "status")), m_left(margin),
      m_bottom(margin), m_height(0)
{
    setCaption("zelkit gallery");
    m_status->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    m_status->setText("Move the pointer over the labels and click them");
}

QWidget* GalleryWindow::addRow(const char* title, int height)
{
    if (m_bottom + headingHeight + height > columnHeight) {
        m_left += rowWidth + 2 * margin;
        m_bottom = margin;
    }
    QLabel* const heading = new QLabel(title, this);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    heading->setGeometry(m_left, m_bottom, rowWidth, headingHeight);
    m_bottom += headingHeight;

    QWidget* const row = new QWidget(this, title);
    row->setGeometry(m_left, m_bottom, rowWidth, height);
    m_bottom += height + margin;
    m_height = std::max(m_height, m_bottom);
    return row;
}

void GalleryWindow::watch(QWidget* sender, const char* signal)
{
    new SignalTeller(sender, signal, m_status);
    if (std::find(m_stops.begin(), m_stops.end(), sender) == m_stops.end())
        m_stops.push_back(sender);
}

void GalleryWindow::finish()
{
    const int right = m_left + rowWidth;
    m_status->setGeometry(margin, m_height, right - margin, statusHeight);
    const double factor = std::max(1.0, double(fontMetrics().width(sample)) / sampleWidth);
    if (factor > 1)
        enlargeChildren(this, factor);
    setFixedSize(qRound((right + margin) * factor), qRound((m_height + statusHeight + margin) * factor));
    const QRect screen = QApplication::desktop()->geometry();
    move(std::max((screen.width() - width()) / 2, 0), std::max((screen.height() - height()) / 2, 0));
}

void GalleryWindow::tellChoice(const QString& what)
{
    m_status->setText("Chosen: " + what);
}
