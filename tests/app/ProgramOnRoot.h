// The whole program started on a data root, as the tests of its windows need it: no splash, no desktop program
// started, and a scripted prompt.
#pragma once

#include <memory>

#include "FakePrompt.h"
#include "TempDir.h"
#include "app/CAFApp.h"
#include "app/CMainFrame.h"
#include "app/MixerVolumes.h"

struct ProgramOnRoot {
    FakePrompt prompt;
    std::unique_ptr<CAFApp> app;

    // The machine's own sound server is left alone: no mixer, unless the test gives scripted lines.
    explicit ProgramOnRoot(const std::filesystem::path& root, MixerVolumes::Factory volumes = nullptr) {
        app = std::make_unique<CAFApp>(root, prompt);
        app->startProgram = [](const QString&, const QStringList&) { return false; };
        app->makeVolume = std::move(volumes);
        app->InitInstance({"sonalys", "-Embedding"});
    }
    CMainFrame& frame() const { return *app->mainFrame(); }
};

// A copy of the bundled demo data root, to work on freely.
struct DemoCopy : TempDir {
    DemoCopy() {
        std::filesystem::copy(std::filesystem::path(SONALYS_SOURCE_DIR) / "demo", path(),
                              std::filesystem::copy_options::recursive);
    }
};
