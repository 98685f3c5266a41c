// Ending a process that has used sound. Qt Multimedia 6.4 closes its PulseAudio connection while the process exits,
// without stopping the connection's own thread first: a message from the sound server arriving at that moment (the
// answer to a stream just closed) aborts the process. Letting the connection go quiet before the end avoids it.
#pragma once

// Runs the event loop long enough for the sound server to answer the closing of the last stream. Call it once, after
// every sound device is gone and before the application object is destroyed.
void letSoundSystemSettle();
