#include "view/CConverter1.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "controls/UiText.h"

CConverter1::CConverter1(QWidget* parent) : QDialog(parent) {
    setWindowTitle(uiText(kConverterTitle));
    auto* text = new QLabel(uiText(kConverterText), this);
    text->setWordWrap(true);
    auto* group = new QGroupBox(uiText(kConverterGroup), this);
    m_left = new QRadioButton(uiText(kConverterLeft), group);
    m_right = new QRadioButton(uiText(kConverterRight), group);
    m_mix = new QRadioButton(uiText(kConverterMix), group);
    m_mix->setChecked(true);
    auto* choices = new QVBoxLayout(group);
    choices->addWidget(m_left);
    choices->addWidget(m_right);
    choices->addWidget(m_mix);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* open = buttons->addButton(uiText(kConverterOpen), QDialogButtonBox::AcceptRole);
    open->setObjectName("open");
    open->setDefault(true);
    buttons->addButton(uiText(kConverterCancel), QDialogButtonBox::RejectRole)->setObjectName("cancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(group);
    layout->addWidget(buttons);
}

StereoChoice CConverter1::choice() const {
    if (m_left->isChecked()) return StereoChoice::Left;
    if (m_right->isChecked()) return StereoChoice::Right;
    return StereoChoice::Mix;
}

std::optional<StereoChoice> CConverter1::ask(QWidget* parent) {
    CConverter1 dialog(parent);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.choice();
}
