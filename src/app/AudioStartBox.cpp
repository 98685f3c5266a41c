#include "app/AudioStartBox.h"

#include <QCoreApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLabel>
#include <QVBoxLayout>
#include <QWindow>

#include "controls/UiText.h"
#include "store/Prompt.h"

namespace {

// The longest the start waits for the box to reach the screen before it goes on with the set-up regardless.
constexpr int kExposeWaitMilliseconds = 300;

// The set-up's prompt: the box closes before the first message or question.
class ClosingPrompt : public Prompt {
public:
    ClosingPrompt(Prompt& prompt, QWidget& box) : m_prompt(prompt), m_box(box) {}
    void showOk(std::string_view text) override {
        m_box.close();
        m_prompt.showOk(text);
    }
    bool askYesNo(std::string_view text) override {
        m_box.close();
        return m_prompt.askYesNo(text);
    }
    std::string inLanguage(std::string_view english) const override { return m_prompt.inLanguage(english); }

private:
    Prompt& m_prompt;
    QWidget& m_box;
};

// Shows the box and lets it paint; what the user does meanwhile waits for the window.
void showPainted(QDialog& box) {
    box.show();
    QElapsedTimer waited;
    waited.start();
    while (box.windowHandle() != nullptr && !box.windowHandle()->isExposed() &&
           waited.elapsed() < kExposeWaitMilliseconds)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 20);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace

bool SetUpMixerWithWaitBox(MixerVolumes& mixer, MixerVolumes::Factory make, int recordInput, Prompt& prompt,
                           QWidget* parent) {
    QDialog box(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    box.setWindowTitle(QGuiApplication::applicationDisplayName());
    auto* layout = new QVBoxLayout(&box);
    auto* text = new QLabel(uiText(kStartingAudioDevices), &box);
    text->setMargin(12);
    layout->addWidget(text);
    showPainted(box);
    ClosingPrompt closing(prompt, box);
    return mixer.SetUp(std::move(make), recordInput, closing);
}
