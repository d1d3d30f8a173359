// QComboBox: its entries and settings.
#include <qcombobox.h>

#include "kernel/applicationprivate.h"
#include "style/motif.h"
#include "style/motifinputs.h"
#include "widgets/comboboxdata.h"

#include <qguardedptr.h>
#include <qpixmap.h>
#include <qstringlist.h>
#include <qstrlist.h>
#include <qvalidator.h>

namespace motif = zeltk::motif;

namespace
{

// Only what is too large is worth a warning.
bool isEntry(const char* function, const QComboBox* combo, int index)
{
    if (index >= combo->count())
        qWarning("QComboBox::%s: (%s) Index %d out of range", function, combo->name(), index);
    return index >= 0 && index < combo->count();
}

// Gives an entry another text or picture; false if who hears of it deletes the combo box.
template <typename... Contents>
bool change(QComboBox* combo, QListBox* list, int index, const Contents&... contents)
{
    const QGuardedPtr<QComboBox> alive(combo);
    list->changeItem(contents..., index);
    return alive;
}

} // namespace

QComboBox::QComboBox(QWidget* parent, const char* name) : QWidget(parent, name, WNoAutoErase)
{
    d = new zeltk::ComboBoxData;
    init();
    d->listIsSeen = false;
}

QComboBox::QComboBox(bool rw, QWidget* parent, const char* name) : QWidget(parent, name, WNoAutoErase)
{
    d = new zeltk::ComboBoxData;
    init();
    if (rw)
        setUpLineEdit();
}

QComboBox::~QComboBox()
{
    delete d;
}

void QComboBox::init()
{
    zeltk::ensureStyled();
    setUpListBox();
    setFocusPolicy(StrongFocus);
    setBackgroundMode(PaletteButton, PaletteBase);
    setSizePolicy(QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));
}

void QComboBox::setUpListBox()
{
    QListBox* list = new QListBox(this, "in-combo", WType_Popup);
    list->setFrameStyle(QFrame::Box | QFrame::Plain);
    list->setLineWidth(1);
    list->setHScrollBarMode(QScrollView::AlwaysOff);
    setListBox(list);
}

void QComboBox::setListBox(QListBox* listBox)
{
    clear();
    delete d->list;
    d->list = listBox;
    d->listIsSeen = true;
    if (!listBox->isPopup() || listBox->parentWidget() != this)
        listBox->reparent(this, WType_Popup, QPoint(0, 0), false);
    listBox->setFont(font());
    listBox->setPalette(palette());
    listBox->installEventFilter(this);
    listBox->viewport()->installEventFilter(this);
    connect(listBox, SIGNAL(highlighted(int)), this, SLOT(internalHighlight(int)));
    connect(listBox, SIGNAL(selected(int)), this, SLOT(internalActivate(int)));
}

QListBox* QComboBox::listBox() const
{
    return d->listIsSeen ? d->list : 0;
}

void QComboBox::setUpLineEdit()
{
    QLineEdit* edit = new QLineEdit(this, "combo edit");
    edit->setFrame(false);
    setLineEdit(edit);
}

void QComboBox::setLineEdit(QLineEdit* edit)
{
    if (!edit)
        return;
    edit->setText(currentText());
    delete d->edit;
    d->edit = edit;
    if (edit->parent() != this)
        edit->reparent(this, QPoint(0, 0), false);
    connect(edit, SIGNAL(textChanged(const QString&)), this, SIGNAL(textChanged(const QString&)));
    connect(edit, SIGNAL(returnPressed()), this, SLOT(returnPressed()));
    edit->setFrame(false);
    edit->installEventFilter(this);
    setFocusProxy(edit);
    edit->setGeometry(motif::comboBoxField(rect()));
    if (isVisible())
        edit->show();
    update();
}

QLineEdit* QComboBox::lineEdit() const
{
    return d->edit;
}

bool QComboBox::editable() const
{
    return d->edit != 0;
}

void QComboBox::setEditable(bool editable)
{
    if (editable == this->editable())
        return;
    if (editable) {
        setUpLineEdit();
        return;
    }
    setFocusProxy(0);
    delete d->edit;
    d->edit = 0;
    update();
}

int QComboBox::count() const
{
    return d->list ? static_cast<int>(d->list->count()) : 0;
}

void QComboBox::insertItem(const QString& text, int index)
{
    const int before = count();
    if (index < 0)
        index = before;
    else if (index > before) {
        qWarning("QComboBox::insertItem: (%s) Index %d out of range", name(), index);
        return;
    }
    d->list->insertItem(text, index);
    inserted(index);
}

void QComboBox::insertItem(const QPixmap& pixmap, int index)
{
    insertItem(pixmap, QString(), index);
}

void QComboBox::insertItem(const QPixmap& pixmap, const QString& text, int index)
{
    const int place = index < 0 ? count() : index;
    if (text.isNull())
        d->list->insertItem(pixmap, place);
    else
        d->list->insertItem(pixmap, text, place);
    inserted(place);
}

// The text of the current entry has become another one.
void QComboBox::inserted(int index)
{
    if (index == d->current)
        currentChanged();
}

void QComboBox::insertStringList(const QStringList& list, int index)
{
    const int place = index < 0 ? count() : index;
    d->list->insertStringList(list, place);
    if (!list.isEmpty())
        inserted(place);
}

void QComboBox::insertStrList(const QStrList& list, int index)
{
    const int place = index < 0 ? count() : index;
    d->list->insertStrList(list, place);
    inserted(place);
}

void QComboBox::insertStrList(const QStrList* list, int index)
{
    if (list)
        insertStrList(*list, index);
}

void QComboBox::insertStrList(const char** strings, int numStrings, int index)
{
    const int place = index < 0 ? count() : index;
    d->list->insertStrList(strings, numStrings, place);
    inserted(place);
}

void QComboBox::removeItem(int index)
{
    const int before = count();
    if (!isEntry("removeItem", this, index))
        return;
    const QGuardedPtr<QComboBox> alive(this);
    d->list->removeItem(index);
    if (alive && index == d->current) {
        if (d->edit)
            d->edit->setText(index < before - 1 ? text(index) : QString(""));
        else if (index == before - 1 && index > 0)
            d->current = index - 1;
    }
    if (!alive)
        return;
    d->current = QMIN(d->current, count());
    update();
}

void QComboBox::clear()
{
    if (!d->list)
        return;
    d->list->clear();
    d->current = 0;
    update();
    if (d->edit)
        d->edit->setText(QString(""));
}

int QComboBox::currentItem() const
{
    return d->current;
}

void QComboBox::setCurrentItem(int index)
{
    if ((index == d->current && !d->edit) || !isEntry("setCurrentItem", this, index))
        return;
    const QGuardedPtr<QComboBox> alive(this);
    d->current = index;
    if (d->edit)
        d->edit->setText(text(index));
    if (alive)
        d->list->setCurrentItem(index);
    if (!alive)
        return;
    if (d->autoResize)
        adjustSize();
    repaint(false);
}

// Of an editable one, the text in the field is set to the current entry's.
void QComboBox::currentChanged()
{
    const QGuardedPtr<QComboBox> alive(this);
    update();
    if (d->edit)
        d->edit->setText(text(d->current));
    if (alive && d->autoResize)
        adjustSize();
}

QString QComboBox::currentText() const
{
    if (d->edit)
        return d->edit->text();
    return d->current < count() ? text(d->current) : QString();
}

// An entry with this text becomes current; without one an editable one shows the text, else the current
// entry is changed.
void QComboBox::setCurrentText(const QString& text)
{
    int found = 0;
    while (found < count() && !(this->text(found) == text))
        ++found;
    if (found < count())
        setCurrentItem(found);
    else if (d->edit)
        d->edit->setText(text);
    else
        changeItem(text, currentItem());
}

QString QComboBox::text(int index) const
{
    return isEntry("text", this, index) ? d->list->text(index) : QString();
}

const QPixmap* QComboBox::pixmap(int index) const
{
    return isEntry("pixmap", this, index) ? d->list->pixmap(index) : 0;
}

void QComboBox::changeItem(const QString& text, int index)
{
    if (isEntry("changeItem", this, index) && change(this, d->list, index, text))
        inserted(index);
}

void QComboBox::changeItem(const QPixmap& pixmap, int index)
{
    if (isEntry("changeItem", this, index) && change(this, d->list, index, pixmap))
        inserted(index);
}

void QComboBox::changeItem(const QPixmap& pixmap, const QString& text, int index)
{
    if (isEntry("changeItem", this, index) && change(this, d->list, index, pixmap, text))
        inserted(index);
}

void QComboBox::setPalette(const QPalette& palette)
{
    QWidget::setPalette(palette);
    if (d->list)
        d->list->setPalette(palette);
    if (d->edit)
        d->edit->setPalette(palette);
}

void QComboBox::setFont(const QFont& font)
{
    QWidget::setFont(font);
    if (d->list)
        d->list->setFont(font);
    if (d->edit)
        d->edit->setFont(font);
}

void QComboBox::setEnabled(bool enable)
{
    QWidget::setEnabled(enable);
}

void QComboBox::setSizeLimit(int limit)
{
    d->sizeLimit = limit;
}

int QComboBox::sizeLimit() const
{
    return d->sizeLimit;
}

// One more than that remains.
void QComboBox::setMaxCount(int count)
{
    const QGuardedPtr<QComboBox> alive(this);
    d->maxCount = count;
    for (int last = this->count() - 1; alive && last > QMAX(count, -1); --last)
        removeItem(last);
}

int QComboBox::maxCount() const
{
    return d->maxCount;
}

void QComboBox::setInsertionPolicy(Policy policy)
{
    d->policy = policy;
}

QComboBox::Policy QComboBox::insertionPolicy() const
{
    return d->policy;
}

void QComboBox::setValidator(const QValidator* validator)
{
    if (d->edit)
        d->edit->setValidator(validator);
}

const QValidator* QComboBox::validator() const
{
    return d->edit ? d->edit->validator() : 0;
}

void QComboBox::clearValidator()
{
    setValidator(0);
}

void QComboBox::setAutoCompletion(bool enable)
{
    d->completes = enable;
    d->completeNow = false;
}

bool QComboBox::autoCompletion() const
{
    return d->completes;
}

void QComboBox::setAutoResize(bool enable)
{
    d->autoResize = enable;
    if (enable)
        adjustSize();
}

bool QComboBox::autoResize() const
{
    return d->autoResize;
}

void QComboBox::setDuplicatesEnabled(bool enable)
{
    d->duplicates = enable;
}

bool QComboBox::duplicatesEnabled() const
{
    return d->duplicates;
}

void QComboBox::setEditText(const QString& text)
{
    if (d->edit)
        d->edit->setText(text);
}

void QComboBox::clearEdit()
{
    setEditText(QString(""));
}
