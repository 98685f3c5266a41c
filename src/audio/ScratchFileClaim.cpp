#include "audio/ScratchFileClaim.h"

#include <chrono>
#include <string>

#include "clients/TableLock.h"
#include "store/RecordingFiles.h"

namespace {

std::filesystem::path candidate(const std::filesystem::path& dataRoot, int index) {
    if (index == 1) return ScratchRecordingPath(dataRoot);
    return dataRoot / ("grav" + std::to_string(index) + ".tmp");
}

}  // namespace

ScratchFileClaim::ScratchFileClaim() = default;
ScratchFileClaim::~ScratchFileClaim() = default;

bool ScratchFileClaim::claim(const std::filesystem::path& dataRoot) {
    release();
    for (int index = 1; index <= kMostCaptures; ++index) {
        // A capture never waits for another: it lasts as long as the clinician records.
        auto lock = std::make_unique<TableLock>(candidate(dataRoot, index), std::chrono::milliseconds(0));
        if (lock->status() == TableLockStatus::Busy) continue;
        // Without locks on this file system, or where no lock file can be made, the capture goes on as a lone
        // program would; opening the scratch file itself then tells whether the folder can be written.
        m_path = candidate(dataRoot, index);
        m_lock = std::move(lock);
        return true;
    }
    return false;
}

void ScratchFileClaim::release() noexcept { m_lock.reset(); }
