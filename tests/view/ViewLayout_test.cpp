// The two layouts, the offsets of the large one, and the mapping of the page onto the widget and back.
#include <QTest>

#include "view/ViewLayout.h"

class ViewLayoutTest : public QObject {
    Q_OBJECT
private slots:
    void theSmallLayoutServesScreensExactly800WideOr600High_data();
    void theSmallLayoutServesScreensExactly800WideOr600High();
    void theLargeLayoutMovesByHalfTheSizeAboveTheReference();
    void thePageFillsTheWidgetAndPositionsMapBack();
};

void ViewLayoutTest::theSmallLayoutServesScreensExactly800WideOr600High_data() {
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<bool>("large");
    QTest::newRow("800 x 600") << QSize(800, 600) << false;
    QTest::newRow("800 x 1024: one test suffices") << QSize(800, 1024) << false;
    QTest::newRow("1024 x 600") << QSize(1024, 600) << false;
    QTest::newRow("801 x 601") << QSize(801, 601) << true;
    QTest::newRow("1024 x 768") << QSize(1024, 768) << true;
}

void ViewLayoutTest::theSmallLayoutServesScreensExactly800WideOr600High() {
    QFETCH(QSize, screen);
    QFETCH(bool, large);
    const ViewLayout layout = ViewLayout::forScreen(screen);
    QCOMPARE(layout.LargeLayout, large);
    if (large) return;
    QCOMPARE(layout.GraphLeft, 92);
    QCOMPARE(layout.GraphWidth, 671);
    QCOMPARE(layout.GraphTop, 100);
    QCOMPARE(layout.GraphHeight, 300);
    QCOMPARE(layout.StripTop, 100 + 300 + 45);
    QCOMPARE(layout.StripHeight, 50);
    QCOMPARE(layout.TitleTop, 50);
    QCOMPARE(layout.TitleHeight, 35);
    QCOMPARE(layout.PanelSplit, 400);
    QCOMPARE(layout.verticalStretch(), 1.0);
}

void ViewLayoutTest::theLargeLayoutMovesByHalfTheSizeAboveTheReference() {
    const ViewLayout reference = ViewLayout::forScreen({1024, 768});
    QCOMPARE(reference.GraphLeft, 140);
    QCOMPARE(reference.GraphWidth, 800);
    QCOMPARE(reference.GraphTop, 150);
    QCOMPARE(reference.StripTop, 495);
    QCOMPARE(reference.StripHeight, 70);
    QCOMPARE(reference.TitleTop, 70);
    QCOMPARE(reference.TitleHeight, 60);
    QCOMPARE(reference.PanelSplit, 500);
    const ViewLayout wide = ViewLayout::forScreen({1920, 1080});  // offsets 448 and 156
    QCOMPARE(wide.GraphLeft, 588);
    QCOMPARE(wide.GraphTop, 306);
    QCOMPARE(wide.StripTop, 306 + 345);
    QCOMPARE(wide.PanelSplit, 948);
    QCOMPARE(wide.TitleTop, 70);                                    // the read-out row does not move down
    const ViewLayout smaller = ViewLayout::forScreen({1000, 700});  // negative offsets are 0
    QCOMPARE(smaller.XOffset, 0);
    QCOMPARE(smaller.YOffset, 0);
    QCOMPARE(smaller.GraphLeft, 140);
    const ViewLayout odd = ViewLayout::forScreen({1281, 1025});
    QCOMPARE(odd.GraphLeft, 140 + 128);  // 257 x 0.5, truncated
}

void ViewLayoutTest::thePageFillsTheWidgetAndPositionsMapBack() {
    const ViewLayout layout = ViewLayout::forScreen({1024, 768});
    QCOMPARE(layout.pageSize(), QSizeF(1024, 600));  // 768 less the window's 102, over 1.11
    // On a widget of the reference size, the stretch of the large layout is 111 / 100.
    const QSizeF widget(1024, 666);
    QCOMPARE(layout.toWidget(widget).map(QPointF(140, 150)), QPointF(140, 166.5));
    QCOMPARE(layout.toPage(QPointF(512, 333), widget), QPointF(512, 300));
    // Any other size fills the widget in both directions.
    const QSizeF half(512, 300);
    QCOMPARE(layout.toWidget(half).map(QPointF(1024, 600)), QPointF(512, 300));
    QCOMPARE(layout.toPage(QPointF(70, 75), half), QPointF(140, 150));
    const ViewLayout small = ViewLayout::forScreen({800, 600});
    QCOMPARE(small.pageSize(), QSizeF(800, 498));
    QCOMPARE(small.toWidget(QSizeF(800, 498)).map(QPointF(92, 100)), QPointF(92, 100));
}

QTEST_MAIN(ViewLayoutTest)
#include "ViewLayout_test.moc"
