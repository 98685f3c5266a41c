// From a selection in pixels to a range of samples, and the rules that stop a drag at the strip's ends.
#include <QTest>

#include "FakePrompt.h"
#include "view/Selection.h"

class SelectionTest : public QObject {
    Q_OBJECT
private slots:
    void dragsLeftAndRightGiveTheSameRange();
    void theWholeStripIsTheWholeRecording();
    void anInsertionPointTakesItsPixelPositionAsItsLength();
    void zoomedTheRangeIsTheShownOne();
    void aNegativeEndAsksForAnArea();
    void dragsStopAtTheStripEnds();

private:
    const ViewLayout m_layout = ViewLayout::forScreen({800, 600});  // strip 92 to 763
};

void SelectionTest::dragsLeftAndRightGiveTheSameRange() {
    FakePrompt prompt;
    const std::int64_t count = 671 * 100;  // 100 samples a pixel
    const auto right = SelectionSampleRange(m_layout, count, false, {}, 100, 200, prompt);
    const auto left = SelectionSampleRange(m_layout, count, false, {}, 200, 100, prompt);
    QVERIFY(right && left);
    QCOMPARE(*right, (SampleRange{800, 10800}));
    QCOMPARE(*left, *right);
    QVERIFY(prompt.shown.empty());
}

void SelectionTest::theWholeStripIsTheWholeRecording() {
    FakePrompt prompt;
    // 90469 / 671 in float times 671 falls just short of 90469; the right end still ends the recording.
    for (const std::int64_t count : {std::int64_t{90469}, std::int64_t{671}, std::int64_t{26460000}}) {
        const auto range = SelectionSampleRange(m_layout, count, false, {}, 92, 763, prompt);
        QVERIFY(range);
        QCOMPARE(*range, (SampleRange{0, count}));
    }
    QVERIFY(SpansWholeStrip(m_layout, 763, 92));
    QVERIFY(!SpansWholeStrip(m_layout, 93, 763));
}

void SelectionTest::anInsertionPointTakesItsPixelPositionAsItsLength() {
    FakePrompt prompt;
    // First (300 - 92) x 100; the length is 300 x 100, the pixel itself and not 0.
    const auto range = SelectionSampleRange(m_layout, 67100, false, {}, 300, 300, prompt);
    QVERIFY(range);
    QCOMPARE(*range, (SampleRange{20800, 20800 + 30000}));
}

void SelectionTest::zoomedTheRangeIsTheShownOne() {
    FakePrompt prompt;
    const auto range = SelectionSampleRange(m_layout, 67100, true, {1000, 5000}, 100, 600, prompt);
    QVERIFY(range);
    QCOMPARE(*range, (SampleRange{1000, 5000}));
}

void SelectionTest::aNegativeEndAsksForAnArea() {
    FakePrompt prompt;
    QVERIFY(!SelectionSampleRange(m_layout, 67100, false, {}, 50, 200, prompt));
    QCOMPARE(prompt.shown, std::vector<std::string>{"You need to select an area!"});
}

void SelectionTest::dragsStopAtTheStripEnds() {
    QCOMPARE(ClampToStrip(m_layout, 10), 92);
    QCOMPARE(ClampToStrip(m_layout, 92), 92);
    QCOMPARE(ClampToStrip(m_layout, 763), 763);
    QCOMPARE(ClampToStrip(m_layout, 764), 763);
}

QTEST_MAIN(SelectionTest)
#include "Selection_test.moc"
