#include "OptionsController.h"

#include "ModelFixture.h"

#include <QSignalSpy>
#include <QTest>

class OptionsControllerTest : public QObject
{
    Q_OBJECT

    ModelFixture m_fixture;
    OptionsController m_controller;

    AppModel &model() { return m_fixture.model(); }

private Q_SLOTS:
    void initTestCase() { m_controller.setModel(&m_fixture.launch()); }

    void shouldOfferTheChoicesInTheirOrderAndWriteThemToTheModel()
    {
        QCOMPARE(m_controller.outputLocations(),
                 (QStringList{QStringLiteral("Beside originals"), QStringLiteral("Lumaport folder")}));
        QCOMPARE(m_controller.originalPolicies(),
                 (QStringList{QStringLiteral("Keep originals"), QStringLiteral("Move to Originals")}));
        QCOMPARE(m_controller.outputLocation(), 1);
        QCOMPARE(m_controller.originalPolicy(), 0);
        m_controller.setOutputLocation(0);
        m_controller.setOriginalPolicy(1);
        m_controller.setNotificationsEnabled(false);
        m_controller.setAppearanceMode(2);
        const ConversionSettings settings = model().settings();
        QCOMPARE(settings.outputLocation, OutputLocation::alongside);
        QCOMPARE(settings.originalPolicy, OriginalPolicy::archive);
        QVERIFY(!settings.notificationsEnabled);
        QCOMPARE(model().appearanceMode(), AppearanceMode::dark);
        QVERIFY(m_fixture.appearance->isDark());
    }

    void shouldHaveAQualityOnlyForJpegAndKeepItMeanwhile()
    {
        m_controller.setFormat(1);
        QVERIFY(m_controller.hasQuality());
        m_controller.setJpegQuality(0.75);
        QSignalSpy changed(&m_controller, &OptionsController::settingsChanged);
        m_controller.setFormat(0);
        QVERIFY(!m_controller.hasQuality());
        QVERIFY(!changed.isEmpty());
        m_controller.setFormat(1);
        QCOMPARE(m_controller.qualityText(), QStringLiteral("75% quality"));
    }

    void shouldCutTheQualityOffToWholePercent_data()
    {
        QTest::addColumn<double>("quality");
        QTest::addColumn<QString>("text");
        QTest::newRow("as set") << 0.85 << "85% quality";
        QTest::newRow("just below a whole number") << 0.7999999 << "79% quality";
        QTest::newRow("out of the slider's range") << 1.7 << "170% quality";
    }

    void shouldCutTheQualityOffToWholePercent()
    {
        QFETCH(double, quality);
        QFETCH(QString, text);
        m_controller.setJpegQuality(quality);
        QCOMPARE(model().settings().jpegQuality, quality);
        QCOMPARE(m_controller.qualityText(), text);
    }

    void shouldNotOfferToConvertExistingPhotosWhileBusy()
    {
        QVERIFY(m_controller.canConvertExisting());
        QSignalSpy changed(&m_controller, &OptionsController::busyChanged);
        model().setItems({ConversionItem::queuedFor(m_fixture.url(QStringLiteral("a.heic")), {})});
        QVERIFY(!m_controller.canConvertExisting());
        QVERIFY(!changed.isEmpty());
        QCOMPARE(m_controller.watchFolderPath(), m_fixture.home.filePath(QStringLiteral("Photos")));
    }
};

QTEST_MAIN(OptionsControllerTest)
#include "OptionsControllerTest.moc"
