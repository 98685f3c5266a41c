#include "app/HelpBrowser.h"

#include <QFile>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "controls/UiText.h"

namespace {

// The folder of each language's guide, under the English pages.
const char* helpFolder(LanguageId language) {
    switch (language) {
    case LanguageId::Spanish: return "es";
    case LanguageId::Korean: return "ko";
    case LanguageId::Portuguese: return "pt";
    case LanguageId::English: break;
    }
    return nullptr;
}

}  // namespace

QUrl helpStartPage(LanguageId language) {
    if (const char* folder = helpFolder(language)) {
        const QString page = QStringLiteral("/help/%1/index.html").arg(QLatin1String(folder));
        if (QFile::exists(QLatin1Char(':') + page)) return QUrl(QStringLiteral("qrc:") + page);
    }
    return QUrl(QString::fromLatin1(kHelpStartPage));
}

HelpBrowser::HelpBrowser(LanguageId language, QWidget* parent)
    : QWidget(parent, Qt::Window),
      m_browser(new QTextBrowser(this)),
      m_contents(new QPushButton(this)),
      m_back(new QPushButton(this)),
      m_forward(new QPushButton(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    m_back->setEnabled(false);
    m_forward->setEnabled(false);
    connect(m_contents, &QPushButton::clicked, m_browser, &QTextBrowser::home);
    connect(m_back, &QPushButton::clicked, m_browser, &QTextBrowser::backward);
    connect(m_forward, &QPushButton::clicked, m_browser, &QTextBrowser::forward);
    connect(m_browser, &QTextBrowser::backwardAvailable, m_back, &QPushButton::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, m_forward, &QPushButton::setEnabled);
    // Links to the web go to the user's browser; the guide's own pages stay here.
    m_browser->setOpenExternalLinks(true);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_contents);
    buttons->addWidget(m_back);
    buttons->addWidget(m_forward);
    buttons->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(m_browser);
    setLanguage(language);
    resize(760, 620);
}

void HelpBrowser::setLanguage(LanguageId language) {
    setWindowTitle(uiText(kHelpTitle));
    m_contents->setText(uiText(kHelpContents));
    m_back->setText(uiText(kHelpBack));
    m_forward->setText(uiText(kHelpForward));
    // A new source starts a new history, so Contents leads to the first page of this language's guide.
    m_browser->clearHistory();
    m_browser->setSource(helpStartPage(language));
}
