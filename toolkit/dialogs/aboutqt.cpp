// QApplication::aboutQt: what the program is built on.
#include <qapplication.h>
#include <qdialog.h>
#include <qlabel.h>
#include <qpushbutton.h>

void QApplication::aboutQt()
{
    constexpr int margin = 12;
    QDialog dialog(mainWidget(), "aboutqt", true);
    dialog.setCaption(tr("About Qt"));
    const QString text = tr("This program uses zeltk, a small toolkit with the interface of Qt %1.");
    QLabel label(text.arg(QString::fromLatin1(qVersion())), &dialog);
    QPushButton ok(tr("OK"), &dialog);
    ok.setDefault(true);
    connect(&ok, SIGNAL(clicked()), &dialog, SLOT(accept()));
    label.adjustSize();
    label.move(margin, margin);
    ok.adjustSize();
    ok.move(margin + (label.width() - ok.width()) / 2, label.y() + label.height() + margin);
    dialog.setFixedSize(label.width() + 2 * margin, ok.y() + ok.height() + margin);
    dialog.exec();
}
