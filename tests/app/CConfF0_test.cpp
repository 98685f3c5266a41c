// The dialog "F0 Setting...": typed numbers are read whole, a refused range keeps the dialog open with its message.
#include <QComboBox>
#include <QTest>

#include "FakePrompt.h"
#include "app/CConfF0.h"

class CConfF0Test : public QObject {
    Q_OBJECT
private slots:
    void okChecksTheTypedRangeAndKeepsTheDialogOpenWhenRefused();
};

void CConfF0Test::okChecksTheTypedRangeAndKeepsTheDialogOpenWhenRefused() {
    FakePrompt prompt;
    CConfF0 dialog({70, 400}, prompt);
    QCOMPARE(dialog.minimumBox()->currentText(), QString("70"));
    QCOMPARE(dialog.maximumBox()->itemText(dialog.maximumBox()->count() - 1), QString("1200"));
    dialog.open();
    dialog.minimumBox()->setEditText("200");
    dialog.maximumBox()->setEditText("200");
    dialog.accept();
    QVERIFY(dialog.isVisible());
    QCOMPARE(prompt.shown, std::vector<std::string>{"Min. Value >= Max. Value"});
    dialog.minimumBox()->setEditText("85 Hz");  // read as the number it starts with
    dialog.maximumBox()->setEditText("650");
    dialog.accept();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.range(), (F0Range{85, 650}));
    QCOMPARE(prompt.shown.size(), std::size_t(1));
}

QTEST_MAIN(CConfF0Test)
#include "CConfF0_test.moc"
