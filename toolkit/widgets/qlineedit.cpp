// QLineEdit: its text and its settings.
#include <qlineedit.h>

#include "kernel/applicationprivate.h"
#include "widgets/lineeditdata.h"

#include <qapplication.h>
#include <qclipboard.h>
#include <qcursor.h>
#include <qfontmetrics.h>
#include <qguardedptr.h>

using zeltk::EditBuffer;

namespace zeltk
{

void LineEditData::finish(QLineEdit* edit)
{
    const QGuardedPtr<QLineEdit> alive(edit);
    const bool textChanged = buffer.takeTextChanged();
    const bool selectionChanged = buffer.takeSelectionChanged();
    edit->repaint(false);
    if (textChanged)
        emit edit->textChanged(value());
    if (alive && selectionChanged)
        emit edit->selectionChanged();
}

void LineEditData::finish(QLineEdit* edit, const EditBuffer& before)
{
    if (validator) {
        QString text = value();
        int cursor = buffer.cursor();
        if (validator->validate(text, cursor) == QValidator::Invalid) {
            buffer = before;
            buffer.deselect();
        } else if (!(text == value())) {
            setValue(text);
            buffer.moveCursor(cursor, false);
        } else if (cursor != buffer.cursor()) {
            buffer.moveCursor(cursor, false);
        }
    }
    finish(edit);
}

} // namespace zeltk

QLineEdit::QLineEdit(QWidget* parent, const char* name) : QFrame(parent, name, WNoAutoErase)
{
    init();
}

QLineEdit::QLineEdit(const QString& contents, QWidget* parent, const char* name)
    : QFrame(parent, name, WNoAutoErase)
{
    init();
    setText(contents);
}

QLineEdit::QLineEdit(const QString& contents, const QString& inputMask, QWidget* parent, const char* name)
    : QFrame(parent, name, WNoAutoErase)
{
    init();
    setInputMask(inputMask);
    setText(contents);
}

QLineEdit::~QLineEdit()
{
    delete d;
}

void QLineEdit::init()
{
    d = new zeltk::LineEditData;
    setCursor(QCursor(IbeamCursor));
    setFocusPolicy(StrongFocus);
    setBackgroundMode(PaletteBase);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed));
    setFrame(true);
}

QString QLineEdit::text() const
{
    const QString text = d->value();
    return text.isNull() ? QString("") : text;
}

QString QLineEdit::displayText() const
{
    return d->shown();
}

void QLineEdit::setText(const QString& text)
{
    d->setValue(text);
    d->finish(this);
}

void QLineEdit::clear()
{
    if (d->buffer.length() == 0)
        return;
    const EditBuffer before = d->buffer;
    d->buffer.moveCursor(0, false);
    d->buffer.moveCursor(d->buffer.length(), true);
    d->removeBehind();
    d->finish(this, before);
}

QString QLineEdit::inputMask() const
{
    return d->mask.pattern();
}

void QLineEdit::setInputMask(const QString& inputMask)
{
    const QString text = d->value();
    d->mask = zeltk::EditMask(inputMask);
    setText(text);
}

int QLineEdit::maxLength() const
{
    return d->mask.isSet() ? d->mask.length() : d->maxLength;
}

void QLineEdit::setMaxLength(int length)
{
    d->maxLength = length;
    if (!d->mask.isSet() && length < d->buffer.length())
        setText(d->buffer.text());
}

bool QLineEdit::frame() const
{
    return frameShape() != NoFrame;
}

void QLineEdit::setFrame(bool enable)
{
    setFrameStyle(enable ? LineEditPanel | Sunken : NoFrame | Plain);
    setLineWidth(enable ? 2 : 0);
}

QLineEdit::EchoMode QLineEdit::echoMode() const
{
    return d->echo;
}

void QLineEdit::setEchoMode(EchoMode mode)
{
    d->echo = mode;
    update();
}

bool QLineEdit::isReadOnly() const
{
    return d->readOnly;
}

void QLineEdit::setReadOnly(bool enable)
{
    d->readOnly = enable;
    setCursor(QCursor(enable ? ArrowCursor : IbeamCursor));
    update();
}

const QValidator* QLineEdit::validator() const
{
    return d->validator;
}

void QLineEdit::setValidator(const QValidator* validator)
{
    d->validator = const_cast<QValidator*>(validator);
}

void QLineEdit::clearValidator()
{
    setValidator(0);
}

bool QLineEdit::hasAcceptableInput() const
{
    if (d->mask.isSet() && !d->mask.isComplete(d->buffer.text()))
        return false;
    if (!d->validator)
        return true;
    QString text = d->value();
    int cursor = d->buffer.cursor();
    return d->validator->validate(text, cursor) == QValidator::Acceptable;
}

bool QLineEdit::validateAndSet(const QString& text, int cursor, int anchor, int drag)
{
    if (d->validator) {
        QString candidate = text;
        int place = cursor;
        if (d->validator->validate(candidate, place) == QValidator::Invalid)
            return false;
    }
    d->buffer.deselect();
    d->buffer.moveCursor(0, false);
    d->buffer.moveCursor(d->buffer.length(), true);
    d->insert(text);
    const int length = d->buffer.length();
    d->buffer.moveCursor(QMIN(anchor, length), false);
    d->buffer.moveCursor(QMIN(drag, length), true);
    d->buffer.select(d->buffer.selectionStart(), d->buffer.selectionEnd(), QMAX(0, QMIN(cursor, length)));
    d->finish(this);
    return true;
}

int QLineEdit::alignment() const
{
    return d->alignment;
}

void QLineEdit::setAlignment(int alignment)
{
    d->alignment = alignment;
    update();
}

bool QLineEdit::dragEnabled() const
{
    return d->dragEnabled;
}

void QLineEdit::setDragEnabled(bool enable)
{
    d->dragEnabled = enable;
}

void QLineEdit::setFont(const QFont& font)
{
    QFrame::setFont(font);
    update();
}

void QLineEdit::setPalette(const QPalette& palette)
{
    QFrame::setPalette(palette);
}

QSize QLineEdit::sizeHint() const
{
    constPolish();
    const QFontMetrics metrics(font());
    const int frame = 2 * frameWidth();
    return QSize(metrics.width('x') * 17 + frame, QMAX(metrics.lineSpacing(), 14) + 2 + frame);
}

QSize QLineEdit::minimumSizeHint() const
{
    constPolish();
    const QFontMetrics metrics(font());
    const int frame = 2 * frameWidth();
    return QSize(metrics.maxWidth() + frame, metrics.height() + 2 + frame);
}

bool QLineEdit::isModified() const
{
    return d->buffer.isModified();
}

void QLineEdit::clearModified()
{
    setEdited(false);
}

void QLineEdit::setEdited(bool edited)
{
    d->buffer.setModified(edited);
}

bool QLineEdit::isUndoAvailable() const
{
    return d->buffer.canUndo();
}

bool QLineEdit::isRedoAvailable() const
{
    return d->buffer.canRedo();
}

void QLineEdit::undo()
{
    if (!isUndoAvailable())
        return;
    d->buffer.undo();
    d->finish(this);
}

void QLineEdit::redo()
{
    if (!isRedoAvailable())
        return;
    d->buffer.redo();
    d->finish(this);
}

void QLineEdit::insert(const QString& text)
{
    const EditBuffer before = d->buffer;
    d->insert(text);
    d->finish(this, before);
}

void QLineEdit::backspace()
{
    const EditBuffer before = d->buffer;
    d->removeBefore();
    if (!(d->buffer.text() == before.text()) || d->buffer.cursor() != before.cursor())
        d->finish(this, before);
}

void QLineEdit::del()
{
    const EditBuffer before = d->buffer;
    d->removeBehind();
    if (!(d->buffer.text() == before.text()) || d->buffer.cursor() != before.cursor())
        d->finish(this, before);
}

void QLineEdit::cut()
{
    if (!hasSelectedText())
        return;
    const QGuardedPtr<QLineEdit> alive(this);
    copy();
    if (alive)
        del();
}

void QLineEdit::copy() const
{
    d->copySelection(false);
}

void QLineEdit::paste()
{
    insert(QApplication::clipboard()->text(QClipboard::Clipboard));
}
