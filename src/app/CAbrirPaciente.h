// The list of clients: choosing the client to work with, finding one by name, and reaching the client form,
// the deletion of a client and the work without a client.
#pragma once

#include <string_view>

#include <QDialog>
#include <QtGlobal>

#include "app/DialogButtons.h"
#include "app/SettingsFiles.h"
#include "store/LoadedRecording.h"

class CMainFrame;
class QLineEdit;
class QPushButton;
class ReportList;

inline constexpr std::string_view kSelectClientTitle = QT_TRANSLATE_NOOP("Sonalys", "Select a Client");
inline constexpr std::string_view kCodeColumn = QT_TRANSLATE_NOOP("Sonalys", "Code");
inline constexpr std::string_view kNameColumn = QT_TRANSLATE_NOOP("Sonalys", "Name");
inline constexpr std::string_view kSearchLabel = QT_TRANSLATE_NOOP("Sonalys", "Name begins with:");
inline constexpr std::string_view kSearchButton = QT_TRANSLATE_NOOP("Sonalys", "&Search");
inline constexpr std::string_view kOpenButton = QT_TRANSLATE_NOOP("Sonalys", "&Open");
inline constexpr std::string_view kNewClientButton = QT_TRANSLATE_NOOP("Sonalys", "&New Client");
inline constexpr std::string_view kOtherFilesButton = QT_TRANSLATE_NOOP("Sonalys", "Other &Files");
inline constexpr std::string_view kPersonalInformationButton = QT_TRANSLATE_NOOP("Sonalys", "&Personal Information");
inline constexpr std::string_view kDeleteClientButton = QT_TRANSLATE_NOOP("Sonalys", "&Delete Client");

inline constexpr std::string_view kTypeNameToSearch =
    QT_TRANSLATE_NOOP("Sonalys", "Type the Client´s name you want to search!");
inline constexpr std::string_view kClientNotFound = QT_TRANSLATE_NOOP("Sonalys", "Client not found!");
inline constexpr std::string_view kSelectAnItem = QT_TRANSLATE_NOOP("Sonalys", "You need to select a Item!");
// "Error Reading File" when the chosen client's row cannot be read: the text of LoadedRecording.h.
inline constexpr std::string_view kConfirmDeleteClient = QT_TRANSLATE_NOOP(
    "Sonalys", "Attention, All Information about this Client will be deleted!\nAre You sure you want to Continue?");
inline constexpr std::string_view kClientFolderNotDeleted =
    QT_TRANSLATE_NOOP("Sonalys", "Client´s folder can´t be deleted!");

// The Name column, in pixels: wide while every row shows, narrower from 11 clients on to leave room for the
// scroll bar. Korean names need the wider column.
int NameColumnWidth(int clientCount, LanguageId language);
inline constexpr int kCodeColumnWidth = 60;

class CAbrirPaciente : public QDialog {
    Q_OBJECT
public:
    // How the list ends; any other end (Close, Escape) is 0.
    enum EndCode { ClientChosen = 1, NewClientChosen = 5, OtherFilesChosen = 6 };

    explicit CAbrirPaciente(CMainFrame& frame);

    ReportList* list() const { return m_list; }

public slots:
    void search();
    void open();
    void personalInformation();
    void deleteClient();

private:
    void fillList();
    void fitNameColumn();
    int selectedCode() const;

    CMainFrame& m_frame;
    ReportList* m_list;
    QLineEdit* m_search;
    QPushButton* m_open;
    QPushButton* m_personalInformation;
    QPushButton* m_deleteClient;
};
