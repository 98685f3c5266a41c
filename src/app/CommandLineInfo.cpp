#include "app/CommandLineInfo.h"

namespace {

// The desktop's standard flags, written /Flag on Windows and -Flag elsewhere; a path starting with a slash is
// still a path.
bool isSplashlessFlag(const QString& argument) {
    if (!argument.startsWith('/') && !argument.startsWith('-')) return false;
    const QString flag = argument.mid(1).toLower();
    return flag == "embedding" || flag == "automation" || flag == "p" || flag == "pt";
}

}  // namespace

CommandLineInfo ParseCommandLine(const QStringList& arguments) {
    CommandLineInfo info;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (isSplashlessFlag(argument)) {
            info.showSplash = false;
        } else if (!argument.startsWith('-') && info.fileName.isEmpty()) {
            info.fileName = argument;
        }
    }
    return info;
}
