// What the X server keeps for a connection, counted by its X-Resource extension.
#ifndef TEST_SERVERRESOURCES_H
#define TEST_SERVERRESOURCES_H

#include <map>
#include <string>

// How many of each type ("WINDOW", "PIXMAP", "GC", "FONT"...) the connection holds that owns the window.
// Empty if the server cannot tell.
std::map<std::string, unsigned> serverResources(unsigned long window);

#endif
