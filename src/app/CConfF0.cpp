#include "app/CConfF0.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QIntValidator>
#include <QVBoxLayout>

#include "controls/UiText.h"
#include "store/Prompt.h"
#include "store/TextFormat.h"
#include "view/ViewCommands.h"

namespace {

template <std::size_t N>
QComboBox* rangeBox(const std::array<int, N>& entries, int current, QWidget* parent) {
    auto* box = new QComboBox(parent);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    for (const int hz : entries) box->addItem(QString::number(hz));
    box->setEditText(QString::number(current));
    return box;
}

int typedNumber(const QComboBox* box) { return static_cast<int>(leadingNumber(box->currentText().toStdString())); }

}  // namespace

CConfF0::CConfF0(const F0Range& current, Prompt& prompt, QWidget* parent)
    : QDialog(parent),
      m_prompt(prompt),
      m_minimum(rangeBox(kF0MinimumEntries, current.minimum, this)),
      m_maximum(rangeBox(kF0MaximumEntries, current.maximum, this)) {
    setWindowTitle(uiText(kCommandF0Setting));
    m_minimum->setObjectName("minimum");
    m_maximum->setObjectName("maximum");
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    form->addRow(uiText(kF0MinimumLabel), m_minimum);
    form->addRow(uiText(kF0MaximumLabel), m_maximum);
    layout->addLayout(form);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &CConfF0::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

F0Range CConfF0::range() const { return {typedNumber(m_minimum), typedNumber(m_maximum)}; }

void CConfF0::accept() {
    if (const auto problem = F0RangeProblem(range())) {
        m_prompt.showOk(*problem);
        return;
    }
    QDialog::accept();
}
