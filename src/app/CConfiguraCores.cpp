#include "app/CConfiguraCores.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

#include "controls/UiText.h"

CConfiguraCores::CConfiguraCores(QWidget* parent) : QDialog(parent) {
    setWindowTitle(uiText(kConfiguraCoresTitle));
    auto* layout = new QVBoxLayout(this);
    auto* heading = new QLabel(uiText(kNeedsOtherResolution), this);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    layout->addWidget(heading);
    layout->addWidget(new QLabel(uiText(kSupportedResolutions), this));
    layout->addWidget(new QLabel(uiText(kSupportedColours), this));
    layout->addSpacing(8);
    layout->addWidget(new QLabel(uiText(kChangeConfigurationNow), this));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Yes | QDialogButtonBox::No, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}
