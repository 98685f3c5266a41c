// The dialog "Record Setting...": which input the recordings are taken from, the microphone or the line input. The
// choice is kept in cfr.dat.
#pragma once

#include <QDialog>
#include <filesystem>
#include <string_view>

class MixerVolumes;
class QComboBox;
struct Prompt;

inline constexpr std::string_view kRecordSettingTitle = QT_TRANSLATE_NOOP("Sonalys", "Record Setting...");
inline constexpr std::string_view kRecordGroup = QT_TRANSLATE_NOOP("Sonalys", "Record");
inline constexpr std::string_view kInputLabel = QT_TRANSLATE_NOOP("Sonalys", "Input:");
// The inputs, in the order of their numbers.
inline constexpr std::string_view kMicrophoneChoice = QT_TRANSLATE_NOOP("Sonalys", "Microfone");
inline constexpr std::string_view kLineInChoice = QT_TRANSLATE_NOOP("Sonalys", "Line In");
// The program cannot switch the sound card's input itself: a new choice reminds the user to do it.
inline constexpr std::string_view kSelectInputInRecordControl =
    QT_TRANSLATE_NOOP("Sonalys", "Attention! Select the Audio Input in the Windows Record Control!");

class CConfGravar : public QDialog {
    Q_OBJECT
public:
    CConfGravar(int recordInput, QWidget* parent = nullptr);
    int Input() const;  // 0 microphone, 1 line in
    QComboBox* inputBox() const { return m_input; }

private:
    QComboBox* m_input = nullptr;
};

// What the OK of the dialog does: a changed input is pointed out, the choice is written to cfr.dat, and the input
// line of the mixer is made anew for it (with a warning when it cannot be). Returns the input now in force.
int ApplyRecordInput(int current, int chosen, MixerVolumes& mixer, Prompt& prompt, const std::filesystem::path& home);
