// What the command line asks of a start: the desktop's standard flags only, the program has no options of its
// own. Started for embedding, automation or printing, the program shows no splash; a file name is opened.
#pragma once

#include <QString>
#include <QStringList>

struct CommandLineInfo {
    bool showSplash = true;
    QString fileName;  // a sound file to open at start, or empty
};

// `arguments` as QCoreApplication::arguments() gives them, the program's own path first.
CommandLineInfo ParseCommandLine(const QStringList& arguments);
