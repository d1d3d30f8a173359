// The end of the connection to the X server, at any moment.
#ifndef MONKEY_KILLING_H
#define MONKEY_KILLING_H

// Lets the server end the connection of the window's owner after that time.
void killOwnerLater(unsigned long window, int microseconds);

// Plays so many games whose connection ends at a random moment. Each must end with exit status 1 and one
// line that says why. Returns 0 if they did.
int playKilledGames(const char* program, int count);

#endif
