#include "app/MessageBoxPrompt.h"

#include <QApplication>
#include <QMessageBox>

#include "controls/UiText.h"

namespace {

QMessageBox::StandardButton showBox(std::string_view text, QMessageBox::Icon icon, QMessageBox::StandardButtons buttons,
                                    QMessageBox::StandardButton defaultButton) {
    QMessageBox box(icon, QGuiApplication::applicationDisplayName(), uiText(text), buttons,
                    QApplication::activeWindow());
    box.setDefaultButton(defaultButton);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

void MessageBoxPrompt::showOk(std::string_view text) {
    showBox(text, QMessageBox::Warning, QMessageBox::Ok, QMessageBox::Ok);
}

bool MessageBoxPrompt::askYesNo(std::string_view text) {
    return showBox(text, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes) ==
           QMessageBox::Yes;
}

std::string MessageBoxPrompt::inLanguage(std::string_view english) const { return uiText(english).toStdString(); }
