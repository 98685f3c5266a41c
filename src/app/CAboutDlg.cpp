#include "app/CAboutDlg.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>

#include "app/CAFApp.h"
#include "app/SystemInfo.h"
#include "controls/DecimalText.h"
#include "controls/UiText.h"

QString VersionLine(bool licensed) {
    return QString::fromUtf8(kApplicationName.data(), static_cast<qsizetype>(kApplicationName.size())) + ' ' +
           uiText(licensed ? kVersionText : kTrialVersion);
}

QString MemoryText(std::int64_t megabytes) {
    QString text = uiText(kMemoryFormat);
    text.replace("%.1f", QString::fromStdString(DecimalText(static_cast<double>(megabytes), 1)));
    return text;
}

CAboutDlg::CAboutDlg(bool licensed, QWidget* parent) : QDialog(parent) {
    setWindowTitle(uiText(kAboutTitle));
    auto* icon = new QLabel(this);
    icon->setPixmap(QIcon(":/app/sonalys.svg").pixmap(QSize(64, 64), devicePixelRatioF()));
    auto* name = new QLabel(VersionLine(licensed), this);
    QFont big = name->font();
    big.setBold(true);
    big.setPointSizeF(big.pointSizeF() * 1.4);
    name->setFont(big);

    auto* facts = new QFormLayout;
    auto* memory = new QLabel(MemoryText(PhysicalMemoryMB()), this);
    memory->setObjectName("memory");
    auto* system = new QLabel(OperatingSystemName(), this);
    system->setObjectName("system");
    facts->addRow(uiText(kMemoryLabel), memory);
    facts->addRow(uiText(kSystemLabel), system);

    auto* text = new QVBoxLayout;
    text->addWidget(name);
    text->addLayout(facts);
    auto* top = new QHBoxLayout;
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addSpacing(12);
    top->addLayout(text, 1);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(buttons);
    setFixedSize(sizeHint());
}
