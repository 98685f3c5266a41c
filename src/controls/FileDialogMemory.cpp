#include "controls/FileDialogMemory.h"

#include <QFile>
#include <QSettings>

namespace {
constexpr const char* kQtOrganization = "QtProject";
constexpr const char* kDialogGroup = "FileDialog";
}  // namespace

FileDialogMemoryGuard::FileDialogMemoryGuard() {
    QSettings settings(QSettings::UserScope, kQtOrganization);
    m_fileExisted = QFile::exists(settings.fileName());
    settings.beginGroup(kDialogGroup);
    for (const QString& key : settings.allKeys()) m_values.insert(key, settings.value(key));
}

FileDialogMemoryGuard::~FileDialogMemoryGuard() {
    QString fileName;
    {
        QSettings settings(QSettings::UserScope, kQtOrganization);
        fileName = settings.fileName();
        settings.remove(kDialogGroup);
        settings.beginGroup(kDialogGroup);
        for (auto value = m_values.cbegin(); value != m_values.cend(); ++value) {
            settings.setValue(value.key(), value.value());
        }
        settings.endGroup();
        settings.sync();
    }
    if (!m_fileExisted) QFile::remove(fileName);
}
