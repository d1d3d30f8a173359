// The one way in which a failed creation of a child widget is reported.
#ifndef CREATIONCHECK_H
#define CREATIONCHECK_H

extern "C" void murmel_fatal(const char* format, ...);

// One format per kind of child; the arguments are the creating source file and the line in it.
#define ZELKIT_PUSH_BUTTON_FAILED "File: %s, line: %d: push button creation failed"
#define ZELKIT_LABEL_FAILED "File: %s, line: %d: label creation failed"
#define ZELKIT_LINE_EDIT_FAILED "File: %s, line: %d: line edit creation failed"
#define ZELKIT_SCROLL_BAR_FAILED "File: %s, line: %d: scroll bar creation failed"
#define ZELKIT_FRAME_FAILED "File: %s, line: %d: frame creation failed"
#define ZELKIT_COMBO_BOX_FAILED "File: %s, line: %d: combo box creation failed"
#define ZELKIT_CHECK_BOX_FAILED "File: %s, line: %d: check box creation failed"

// Reports a child that could not be created and carries on as if it existed: murmel_fatal ends the process.
// Call it with the new child's pointer as soon as it is stored.
inline void checkCreation(const void* child, const char* format, const char* file, int line)
{
    if (!child)
        murmel_fatal(format, file, line);
}

#endif
