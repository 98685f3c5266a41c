// The dialog "Open File", shown when a stereo file is opened from outside a client folder: the person chooses to
// keep the left channel, the right channel, or a mix of both.
#pragma once

#include <optional>
#include <string_view>

#include <QDialog>
#include <QtGlobal>

#include "store/StereoFold.h"

class QRadioButton;

inline constexpr std::string_view kConverterTitle = QT_TRANSLATE_NOOP("Sonalys", "Open File");
inline constexpr std::string_view kConverterText =
    QT_TRANSLATE_NOOP("Sonalys", "Attention: This file was recorded in stereo mode. How do you want to open it?");
inline constexpr std::string_view kConverterGroup = QT_TRANSLATE_NOOP("Sonalys", "Stereo to Mono");
inline constexpr std::string_view kConverterLeft = QT_TRANSLATE_NOOP("Sonalys", "Only the Left Channel");
inline constexpr std::string_view kConverterRight = QT_TRANSLATE_NOOP("Sonalys", "Only the Right Channel");
inline constexpr std::string_view kConverterMix = QT_TRANSLATE_NOOP("Sonalys", "Mix Channels");
inline constexpr std::string_view kConverterOpen = QT_TRANSLATE_NOOP("Sonalys", "Open");
inline constexpr std::string_view kConverterCancel = QT_TRANSLATE_NOOP("Sonalys", "Cancel");

class CConverter1 : public QDialog {
    Q_OBJECT
public:
    explicit CConverter1(QWidget* parent = nullptr);

    // The channel choice of the radio buttons; Mix Channels is checked when the dialog opens.
    StereoChoice choice() const;

    // Shows the dialog and gives the choice, or nothing when the person does not press Open.
    static std::optional<StereoChoice> ask(QWidget* parent);

private:
    QRadioButton* m_left;
    QRadioButton* m_right;
    QRadioButton* m_mix;
};
