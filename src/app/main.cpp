// Sonalys: the clinician's program. The folder it is started in is its data root.
#include <filesystem>

#include <QApplication>

#include "app/CAFApp.h"
#include "app/MessageBoxPrompt.h"

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    MessageBoxPrompt prompt;
    CAFApp app(std::filesystem::current_path(), prompt);
    if (!app.InitInstance(QApplication::arguments())) return 0;
    const int status = QApplication::exec();
    app.ExitInstance();
    return status;
}
