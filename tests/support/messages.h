// The messages (qDebug, qWarning) that the toolkit printed since the test began.
#ifndef TEST_MESSAGES_H
#define TEST_MESSAGES_H

#include <string>
#include <vector>

// Installs the recorder. Fatal messages are printed and end the program as usual.
void recordMessages();
std::vector<std::string>& testMessages();
// All of them, one line each, and forgets them.
std::string takeMessages();

#endif
