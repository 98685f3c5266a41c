// Qt's own file dialog keeps its history (last folder, sizes, view) in the desktop settings that all Qt programs
// share. The program remembers nothing outside its data root but its recent-file list, so while one of these
// guards lives, that history is kept aside, and it is put back exactly as it was when the guard goes.
#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

class FileDialogMemoryGuard {
public:
    FileDialogMemoryGuard();
    ~FileDialogMemoryGuard();
    FileDialogMemoryGuard(const FileDialogMemoryGuard&) = delete;
    FileDialogMemoryGuard& operator=(const FileDialogMemoryGuard&) = delete;

private:
    bool m_fileExisted = false;
    QMap<QString, QVariant> m_values;  // the dialog's settings as they were, by key
};
