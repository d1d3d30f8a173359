// The one mark of what the library offers: everything else is hidden from its users.
#ifndef ZELEXPORT_H
#define ZELEXPORT_H

#define ZELKIT_EXPORT __attribute__((visibility("default")))

#endif
