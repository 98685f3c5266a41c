// The list of the last sound files opened, newest first, kept in the desktop's settings store. It is the only
// thing the program remembers outside its data root.
#pragma once

#include <QSettings>
#include <QString>
#include <QStringList>

inline constexpr const char* kProfileOrganization = "Local AppWizard-Generated Applications";
inline constexpr const char* kProfileApplication = "Sonalys";
inline constexpr int kRecentFileCount = 4;

class RecentFileList {
public:
    RecentFileList();

    QStringList files() const;  // newest first, at most kRecentFileCount
    // Puts `path` at the top; an entry already in the list moves up instead of appearing twice.
    void add(const QString& path);
    void remove(const QString& path);

private:
    void store(const QStringList& files);
    QSettings m_settings;
};
