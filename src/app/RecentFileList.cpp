#include "app/RecentFileList.h"

#include <QDir>

namespace {
constexpr const char* kKey = "Recent File List/files";

bool samePath(const QString& a, const QString& b) {
    return QDir::cleanPath(a).compare(QDir::cleanPath(b),
                                      QDir::separator() == '\\' ? Qt::CaseInsensitive : Qt::CaseSensitive) == 0;
}
}  // namespace

RecentFileList::RecentFileList() : m_settings(kProfileOrganization, kProfileApplication) {}

QStringList RecentFileList::files() const {
    QStringList files = m_settings.value(kKey).toStringList();
    while (files.size() > kRecentFileCount) files.removeLast();
    return files;
}

void RecentFileList::add(const QString& path) {
    QStringList files = this->files();
    files.removeIf([&](const QString& file) { return samePath(file, path); });
    files.prepend(path);
    store(files);
}

void RecentFileList::remove(const QString& path) {
    QStringList files = this->files();
    files.removeIf([&](const QString& file) { return samePath(file, path); });
    store(files);
}

void RecentFileList::store(const QStringList& files) {
    m_settings.setValue(kKey, files.mid(0, kRecentFileCount));
    m_settings.sync();
}
