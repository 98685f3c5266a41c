// The record-rate popup: the ball on the rate in use, and the format index of the line chosen.
#include <QSignalSpy>
#include <QTest>

#include "panels/CTaxaGravaMenu.h"

class CTaxaGravaMenuTest : public QObject {
    Q_OBJECT
private slots:
    void theBallMarksTheRateInUse() {
        // A rate off the list marks nothing.
        for (const auto& [rate, line] : {std::pair{11025, 0}, {22050, 1}, {44100, 2}, {8000, -1}})
            QCOMPARE(CTaxaGravaMenu::MarkedLine(rate), line);
        CTaxaGravaMenu menu(22050);
        QCOMPARE(menu.size(), QSize(60, 45));
        const QImage picture = menu.grab().toImage();
        // The ball spans x 5 to 10 in the middle of its 15-pixel line: its centre is (7, line * 15 + 7).
        for (int line = 0; line < 3; ++line)
            QCOMPARE(picture.pixelColor(7, line * 15 + 7) == QColor(Qt::black), line == 1);
    }

    void aChosenLineGivesItsSixteenBitFormat() {
        // 11025 Hz on the first line, 22050 Hz from its top pixel, 44100 Hz to its last pixel.
        for (const auto& [y, format] : {std::pair{0, 3}, {15, 5}, {44, 7}}) {
            auto* menu = new CTaxaGravaMenu(11025);
            menu->show();
            QSignalSpy chosen(menu, &CTaxaGravaMenu::formatChosen);
            QTest::mouseRelease(menu, Qt::LeftButton, {}, QPoint(30, y));
            QCOMPARE(QList<QVariantList>(chosen), (QList<QVariantList>{{format}}));
        }
    }
};

QTEST_MAIN(CTaxaGravaMenuTest)
#include "CTaxaGravaMenu_test.moc"
