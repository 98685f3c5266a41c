// The user guide: the program's own help pages, shipped inside it, in a window beside the main window.
#pragma once

#include <string_view>

#include <QUrl>
#include <QWidget>
#include <QtGlobal>

#include "app/SettingsFiles.h"

class QPushButton;
class QTextBrowser;

inline constexpr std::string_view kHelpTitle = QT_TRANSLATE_NOOP("Sonalys", "Sonalys Help");
inline constexpr std::string_view kHelpBack = QT_TRANSLATE_NOOP("Sonalys", "&Back");
inline constexpr std::string_view kHelpForward = QT_TRANSLATE_NOOP("Sonalys", "&Forward");
inline constexpr std::string_view kHelpContents = QT_TRANSLATE_NOOP("Sonalys", "&Contents");
inline constexpr const char* kHelpStartPage = "qrc:/help/index.html";

// The guide's first page in the given language. A translated guide stands in a folder named after its language
// beside the English pages; a language without one reads the English guide.
QUrl helpStartPage(LanguageId language);

class HelpBrowser : public QWidget {
    Q_OBJECT
public:
    explicit HelpBrowser(LanguageId language, QWidget* parent = nullptr);
    QTextBrowser* browser() const { return m_browser; }
    // Shows the window's words and the guide in another language, from the guide's first page.
    void setLanguage(LanguageId language);

private:
    QTextBrowser* m_browser;
    QPushButton* m_contents;
    QPushButton* m_back;
    QPushButton* m_forward;
};
