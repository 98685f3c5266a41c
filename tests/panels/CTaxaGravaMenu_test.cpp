// The record-rate popup: the ball on the rate in use, and the format index of the line chosen.
#include <QSignalSpy>
#include <QTest>

#include "panels/CTaxaGravaMenu.h"

class CTaxaGravaMenuTest : public QObject {
    Q_OBJECT
private slots:
    void theBallMarksTheRateInUse();
    void aChosenLineGivesItsSixteenBitFormat_data();
    void aChosenLineGivesItsSixteenBitFormat();
};

void CTaxaGravaMenuTest::theBallMarksTheRateInUse() {
    QCOMPARE(CTaxaGravaMenu::MarkedLine(11025), 0);
    QCOMPARE(CTaxaGravaMenu::MarkedLine(22050), 1);
    QCOMPARE(CTaxaGravaMenu::MarkedLine(44100), 2);
    QCOMPARE(CTaxaGravaMenu::MarkedLine(8000), -1);  // a rate off the list marks nothing
    CTaxaGravaMenu menu(22050);
    QCOMPARE(menu.size(), QSize(60, 45));
    const QImage picture = menu.grab().toImage();
    // The ball spans x 5 to 10 in the middle of its 15-pixel line: its centre is (7, line * 15 + 7).
    for (int line = 0; line < 3; ++line) {
        const bool black = picture.pixelColor(7, line * 15 + 7) == QColor(Qt::black);
        QCOMPARE(black, line == 1);
    }
}

void CTaxaGravaMenuTest::aChosenLineGivesItsSixteenBitFormat_data() {
    QTest::addColumn<int>("y");
    QTest::addColumn<int>("format");
    QTest::newRow("11025 Hz, first line") << 0 << 3;
    QTest::newRow("22050 Hz, from its top pixel") << 15 << 5;
    QTest::newRow("44100 Hz, to its last pixel") << 44 << 7;
}

void CTaxaGravaMenuTest::aChosenLineGivesItsSixteenBitFormat() {
    QFETCH(int, y);
    QFETCH(int, format);
    auto* menu = new CTaxaGravaMenu(11025);
    menu->show();
    QSignalSpy chosen(menu, &CTaxaGravaMenu::formatChosen);
    QTest::mouseRelease(menu, Qt::LeftButton, {}, QPoint(30, y));
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.at(0).at(0).toInt(), format);
}

QTEST_MAIN(CTaxaGravaMenuTest)
#include "CTaxaGravaMenu_test.moc"
