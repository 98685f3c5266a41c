// The user guide: the program's own help pages, shipped inside it, in a window beside the main window.
#pragma once

#include <string_view>

#include <QWidget>
#include <QtGlobal>

class QTextBrowser;

inline constexpr std::string_view kHelpTitle = QT_TRANSLATE_NOOP("Sonalys", "Sonalys Help");
inline constexpr std::string_view kHelpBack = QT_TRANSLATE_NOOP("Sonalys", "&Back");
inline constexpr std::string_view kHelpForward = QT_TRANSLATE_NOOP("Sonalys", "&Forward");
inline constexpr std::string_view kHelpContents = QT_TRANSLATE_NOOP("Sonalys", "&Contents");
inline constexpr const char* kHelpStartPage = "qrc:/help/index.html";

class HelpBrowser : public QWidget {
    Q_OBJECT
public:
    explicit HelpBrowser(QWidget* parent = nullptr);
    QTextBrowser* browser() const { return m_browser; }

private:
    QTextBrowser* m_browser;
};
