// Texts with "%d" or "%s" fields reach the screen in the language in force: the libraries look each template up
// through the screen's prompt before they fill it in, since a filled-in text has no translation of its own.
#include <QTest>
#include <QTranslator>

#include "app/MessageBoxPrompt.h"
#include "audio/WaveDevice.h"
#include "store/RecordingFiles.h"
#include "view/GraphCaptions.h"

class TemplatesInLanguageTest : public QObject {
    Q_OBJECT
private slots:
    void templatesAreTranslatedBeforeTheyAreFilled();
};

void TemplatesInLanguageTest::templatesAreTranslatedBeforeTheyAreFilled() {
    QTranslator spanish;
    QVERIFY(spanish.load("sonalys_es", ":/i18n"));
    QVERIFY(QCoreApplication::installTranslator(&spanish));
    const MessageBoxPrompt screen;
    // Spanish reads day, month, year.
    QCOMPARE(QString::fromStdString(ListRowText(CalendarDate{2010, 1, 2}, 5, 1, screen)),
             QString("02/01/2010 Archivo 5"));
    QCOMPARE(QString::fromStdString(waveErrorText(77, screen)),
             QString("El dispositivo de sonido informó el error 77."));
    QCOMPARE(QString::fromStdString(FormatLineText(WaveFormat{1, 1, 22050, 44100, 2, 16, 0, {}})),
             QString("22050 Hz, 16 bits Mono"));
    QCOMPARE(QString::fromStdString(waveErrorText(77)), QString("The sound device reported error 77."));
    QCoreApplication::removeTranslator(&spanish);
}

QTEST_MAIN(TemplatesInLanguageTest)
#include "TemplatesInLanguage_test.moc"
