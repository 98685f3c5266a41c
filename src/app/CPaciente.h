// The form of one client: inserting a new client or changing one, with the birth date typed in the order of the
// language and checked at each keystroke.
#pragma once

#include <filesystem>
#include <string_view>

#include <QDialog>
#include <QtGlobal>

#include "app/DialogButtons.h"
#include "app/SettingsFiles.h"
#include "clients/PacienteRecord.h"

class CPacienteTable;
class DigitBox;
class QButtonGroup;
class QLineEdit;
class QPushButton;
struct Prompt;

inline constexpr std::string_view kClientFormTitle = QT_TRANSLATE_NOOP("Sonalys", "Client");
inline constexpr std::string_view kInsertButton = QT_TRANSLATE_NOOP("Sonalys", "Insert");
inline constexpr std::string_view kChangeButton = QT_TRANSLATE_NOOP("Sonalys", "Change");
inline constexpr std::string_view kCodeLabel = QT_TRANSLATE_NOOP("Sonalys", "Code:");
inline constexpr std::string_view kNameLabel = QT_TRANSLATE_NOOP("Sonalys", "Name:");
inline constexpr std::string_view kTypeLabel = QT_TRANSLATE_NOOP("Sonalys", "Type:");
inline constexpr std::string_view kMan = QT_TRANSLATE_NOOP("Sonalys", "Man");
inline constexpr std::string_view kWoman = QT_TRANSLATE_NOOP("Sonalys", "Woman");
inline constexpr std::string_view kChild = QT_TRANSLATE_NOOP("Sonalys", "Child");
inline constexpr std::string_view kSinger = QT_TRANSLATE_NOOP("Sonalys", "Singer");
inline constexpr std::string_view kBirthDateLabel = QT_TRANSLATE_NOOP("Sonalys", "Date of birth:");
inline constexpr std::string_view kDateOrderMonthFirst = QT_TRANSLATE_NOOP("Sonalys", "(month / day / year)");
inline constexpr std::string_view kDateOrderDayFirst = QT_TRANSLATE_NOOP("Sonalys", "(day / month / year)");
inline constexpr std::string_view kDateOrderYearFirst = QT_TRANSLATE_NOOP("Sonalys", "(year / month / day)");
inline constexpr std::string_view kAddressLabel = QT_TRANSLATE_NOOP("Sonalys", "Address:");
inline constexpr std::string_view kCityLabel = QT_TRANSLATE_NOOP("Sonalys", "City:");
inline constexpr std::string_view kStateLabel = QT_TRANSLATE_NOOP("Sonalys", "State:");
inline constexpr std::string_view kPostalCodeLabel = QT_TRANSLATE_NOOP("Sonalys", "Postal code:");
inline constexpr std::string_view kHomePhoneLabel = QT_TRANSLATE_NOOP("Sonalys", "Home phone:");
inline constexpr std::string_view kWorkPhoneLabel = QT_TRANSLATE_NOOP("Sonalys", "Work phone:");
inline constexpr std::string_view kObservationsLabel = QT_TRANSLATE_NOOP("Sonalys", "Observations:");

inline constexpr std::string_view kInvalidDay = QT_TRANSLATE_NOOP("Sonalys", "Invalid Day !");
inline constexpr std::string_view kInvalidMonth = QT_TRANSLATE_NOOP("Sonalys", "Invalid Month !");
inline constexpr std::string_view kInvalidYear = QT_TRANSLATE_NOOP("Sonalys", "Invalid Year \nRange: 1890 to 2050");
inline constexpr std::string_view kYearNeedsFourDigits =
    QT_TRANSLATE_NOOP("Sonalys", "Invalid Year (it must have 4 digits)\nSample.: 1974");
inline constexpr std::string_view kNameMissing = QT_TRANSLATE_NOOP("Sonalys", "You need to type the client´s name!");
inline constexpr std::string_view kTypeMissing =
    QT_TRANSLATE_NOOP("Sonalys", "The Client is Man/Woman, Singer or Child?");
inline constexpr std::string_view kFolderAlreadyExists =
    QT_TRANSLATE_NOOP("Sonalys", "The Client´s Folder already exist");
inline constexpr std::string_view kFolderNotCreated =
    QT_TRANSLATE_NOOP("Sonalys", "The client´s folder %s can´t be created!\nThe client´s recordings can´t be kept.");
// Another copy of the program, or a restore of the table, can take a client away while a dialog shows it.
inline constexpr std::string_view kClientNoLongerInTable = QT_TRANSLATE_NOOP(
    "Sonalys",
    "This client is no longer in the client table (another user may have deleted it).\nNothing was changed.");

// The input limits: each text is kept one character shorter than its field in the client table.
inline constexpr int kNameLimit = 59;
inline constexpr int kAddressLimit = 59;
inline constexpr int kCityLimit = 29;
inline constexpr int kStateLimit = 3;
inline constexpr int kPostalCodeLimit = 11;
inline constexpr int kPhoneLimit = 13;
inline constexpr int kObservationsLimit = 99;

class CPaciente : public QDialog {
    Q_OBJECT
public:
    enum Mode { InsertMode = 1, EditMode = 2 };

    // In InsertMode `record` holds the proposed code and the accepted client becomes `currentClient`; in
    // EditMode `record` is the client's row, which OK writes back to the table.
    CPaciente(Mode mode, const PacienteRecord& record, CPacienteTable& table, PacienteRecord& currentClient,
              std::filesystem::path home, LanguageId language, Prompt& prompt, QWidget* parent = nullptr);

    // The client as saved by OK.
    const PacienteRecord& record() const { return m_record; }

    // Whether day, month and year are complete, as the keystroke checks left them.
    bool dayComplete() const { return m_dayComplete; }
    bool monthComplete() const { return m_monthComplete; }
    bool yearComplete() const { return m_yearComplete; }

public slots:
    void accept() override;  // the OK sequence

private:
    void buildForm();
    QLineEdit* addTextBox(const char* name, int limit);
    void fillFrom(const PacienteRecord& record);
    void dayEdited(const QString& text);
    void monthEdited(const QString& text);
    void yearEdited(const QString& text);
    bool readDate(std::string& date);
    void readTexts();
    bool save();

    Mode m_mode;
    PacienteRecord m_record;
    CPacienteTable& m_table;
    PacienteRecord& m_currentClient;
    std::filesystem::path m_home;
    LanguageId m_language;
    Prompt& m_prompt;
    bool m_dayComplete = false;
    bool m_monthComplete = false;
    bool m_yearComplete = false;

    QLineEdit* m_code = nullptr;
    QLineEdit* m_name = nullptr;
    QButtonGroup* m_type = nullptr;
    DigitBox* m_day = nullptr;
    DigitBox* m_month = nullptr;
    DigitBox* m_year = nullptr;
    QLineEdit* m_address = nullptr;
    QLineEdit* m_city = nullptr;
    QLineEdit* m_state = nullptr;
    QLineEdit* m_postalCode = nullptr;
    QLineEdit* m_homePhone = nullptr;
    QLineEdit* m_workPhone = nullptr;
    QLineEdit* m_observations = nullptr;
    QPushButton* m_ok = nullptr;
};
