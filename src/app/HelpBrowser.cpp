#include "app/HelpBrowser.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include "controls/UiText.h"

HelpBrowser::HelpBrowser(QWidget* parent) : QWidget(parent, Qt::Window), m_browser(new QTextBrowser(this)) {
    setWindowTitle(uiText(kHelpTitle));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* contents = new QPushButton(uiText(kHelpContents), this);
    auto* back = new QPushButton(uiText(kHelpBack), this);
    auto* forward = new QPushButton(uiText(kHelpForward), this);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(contents, &QPushButton::clicked, m_browser, &QTextBrowser::home);
    connect(back, &QPushButton::clicked, m_browser, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, m_browser, &QTextBrowser::forward);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QPushButton::setEnabled);
    // Links to the web go to the user's browser; the guide's own pages stay here.
    m_browser->setOpenExternalLinks(true);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(contents);
    buttons->addWidget(back);
    buttons->addWidget(forward);
    buttons->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(m_browser);
    m_browser->setSource(QUrl(kHelpStartPage));
    resize(760, 620);
}
