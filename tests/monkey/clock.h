// The toolkit's clock, in the monkey's hands: it stands still unless moved, so that no run depends on how
// fast the machine is.
#ifndef MONKEY_CLOCK_H
#define MONKEY_CLOCK_H

namespace monkeyclock
{
void advance(int milliseconds);
}

#endif
