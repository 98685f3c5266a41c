#include "app/CConfGravar.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "app/DialogButtons.h"
#include "app/MixerVolumes.h"
#include "app/SettingsFiles.h"
#include "controls/UiText.h"
#include "store/Prompt.h"

CConfGravar::CConfGravar(int recordInput, QWidget* parent) : QDialog(parent) {
    setWindowTitle(uiText(kRecordSettingTitle));
    auto* group = new QGroupBox(uiText(kRecordGroup), this);
    auto* form = new QFormLayout(group);
    m_input = new QComboBox(group);
    m_input->addItem(uiText(kMicrophoneChoice));
    m_input->addItem(uiText(kLineInChoice));
    m_input->setCurrentIndex(recordInput);
    form->addRow(uiText(kInputLabel), m_input);

    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(uiText(kOkButton), QDialogButtonBox::AcceptRole);
    buttons->addButton(uiText(kCancelButton), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(group);
    layout->addWidget(buttons);
}

int CConfGravar::Input() const { return m_input->currentIndex(); }

int ApplyRecordInput(int current, int chosen, MixerVolumes& mixer, Prompt& prompt, const std::filesystem::path& home) {
    if (chosen != current) prompt.showOk(kSelectInputInRecordControl);
    WriteRecordInput(home, chosen);
    if (!mixer.SetInput(chosen)) prompt.showOk(kCannotDefineInput);
    return chosen;
}
