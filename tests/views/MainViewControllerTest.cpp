#include "MainViewController.h"

#include "ConversionError.h"
#include "DefaultsStore.h"
#include "ModelFixture.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

namespace {

using Step = std::function<void(ModelFixture &)>;

void land(ModelFixture &fixture)
{
    fixture.model().convertManually({fixture.write("IMG_1.HEIC")});
}

void convert(ModelFixture &fixture)
{
    land(fixture);
    ModelFixture::turn();
}

void finish(ModelFixture &fixture)
{
    convert(fixture);
    fixture.engine->succeed("IMG_1.png");
}

} // namespace

Q_DECLARE_METATYPE(Step)

class MainViewControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<ModelFixture>();
        m_controller = std::make_unique<MainViewController>(m_fixture->launch(), m_fixture->defaults);
    }

    void cleanup()
    {
        m_controller.reset();
        m_fixture.reset();
    }

    void shouldFitTheStageIntoTheRoomThatIsLeft_data()
    {
        QTest::addColumn<double>("workspaceHeight");
        QTest::addColumn<double>("optionsShown");
        QTest::addColumn<bool>("compact");
        QTest::addColumn<double>("stageHeight");
        QTest::newRow("compact") << 620.0 << 0.0 << true << 190.0;
        QTest::newRow("compact with the options") << 620.0 << 1.0 << true << 166.0;
        QTest::newRow("while the options slide") << 620.0 << 0.5 << true << 178.0;
        QTest::newRow("just compact") << 649.0 << 0.0 << true << 219.0;
        QTest::newRow("just not compact") << 650.0 << 0.0 << false << 190.0;
        QTest::newRow("not taller than it was designed") << 1000.0 << 1.0 << false << 222.0;
        QTest::newRow("never lower than 60 points") << 480.0 << 0.0 << true << 60.0;
    }

    void shouldFitTheStageIntoTheRoomThatIsLeft()
    {
        QFETCH(double, workspaceHeight);
        QFETCH(double, optionsShown);
        QTEST(MainViewController::isCompact(workspaceHeight), "compact");
        QTEST(MainViewController::stageHeight(workspaceHeight, optionsShown), "stageHeight");
    }

    void shouldFollowTheModel_data()
    {
        QTest::addColumn<Step>("step");
        QTest::addColumn<QString>("headline");
        QTest::addColumn<QString>("detail");
        QTest::addColumn<QString>("badge");
        QTest::addColumn<QString>("card");
        const QString idle("AirDrop it. It’s ready.");
        const QString source("IMG_1.HEIC/Photo/photo");
        const QString empty("/Photo/photo");
        QTest::newRow("queued") << Step(land) << "Your photo just landed."
                                << "IMG_1.HEIC landed"
                                << "still fluid" << source;
        QTest::newRow("converting") << Step(convert) << "A little format magic."
                                    << "IMG_1.HEIC landed"
                                    << "moving fluid" << source;
        QTest::newRow("ready") << Step(finish) << "New format. Same moment."
                               << "Ready: IMG_1.png"
                               << "checkmark, expanded"
                               << "IMG_1.png/Ready/checkmark";
        QTest::newRow("failed") << Step([](ModelFixture &fixture) {
            convert(fixture);
            fixture.engine->fail(ConversionError::unreadableImage);
        }) << "This photo needs attention."
                                << "Couldn’t convert IMG_1.HEIC"
                                << "exclamationmark" << source;
        QTest::newRow("idle again") << Step([](ModelFixture &fixture) {
            finish(fixture);
            fixture.jobs->advance(std::chrono::seconds(4));
        }) << idle << "New HEIC photos in your watched folder become PNG, automatically."
                                    << "arrow.down"
                                    << "IMG_1.png/Photo/photo";
        QTest::newRow("a drag during a conversion") << Step([](ModelFixture &fixture) {
            land(fixture);
            fixture.model().setIsDropTargeted(true);
        }) << "Drop it. We’ve got it."
                                                    << "IMG_1.HEIC landed"
                                                    << "still fluid, expanded" << source;
        QTest::newRow("JPEG") << Step([](ModelFixture &fixture) {
            fixture.model().setSettings({.format = OutputFormat::jpeg});
        }) << idle << "New HEIC photos in your watched folder become JPEG, automatically."
                              << "arrow.down" << empty;
        QTest::newRow("paused") << Step([](ModelFixture &fixture) { fixture.model().setIsWatching(false); })
                                << "Ready when you are."
                                << "Resume automatic conversion, or choose photos manually."
                                << "arrow.down" << empty;
        QTest::newRow("no folder, and paused") << Step([](ModelFixture &fixture) {
            QDir(fixture.home.path()).rmdir("Photos");
            fixture.model().setIsWatching(false);
            fixture.model().retryMonitoring();
        }) << "Let’s reconnect your folder."
                                               << "Open conversion options to choose an available folder."
                                               << "arrow.down" << empty;
    }

    void shouldFollowTheModel()
    {
        QFETCH(Step, step);
        const PhotoLandingStageController *stage = m_controller->stage();
        QString headline = m_controller->headline();
        QString detail = m_controller->workspaceDetail();
        QString shownBadge = badge();
        QString shownCard = card(0);
        const QObject receiver; // what is not announced is not seen
        connect(m_controller.get(), &MainViewController::textsChanged, &receiver, [&] {
            headline = m_controller->headline();
            detail = m_controller->workspaceDetail();
        });
        connect(stage, &PhotoLandingStageController::changed, &receiver, [&] { shownBadge = badge(); });
        connect(stage, &QAbstractItemModel::dataChanged, &receiver, [&] { shownCard = card(0); });
        QSignalSpy resets(stage, &QAbstractItemModel::modelReset);
        step(*m_fixture);
        QTEST(headline, "headline");
        QTEST(detail, "detail");
        QTEST(shownBadge, "badge");
        QTEST(shownCard, "card");
        QCOMPARE(card(1) + card(2), "/Photo/photo/Photo/photo");
        QVERIFY2(resets.isEmpty(), "each card keeps its picture");
    }

    void shouldShowTheNewestThree()
    {
        for (const char *name : {"1.heic", "2.heic", "3.heic", "4.heic"}) {
            m_fixture->model().convertManually({m_fixture->write(name)});
        }
        QCOMPARE(m_controller->stage()->rowCount(), 3);
        QCOMPARE(card(0) + card(1) + card(2), "4.heic/Photo/photo3.heic/Photo/photo2.heic/Photo/photo");
    }

private:
    QString badge() const
    {
        const PhotoLandingStageController *stage = m_controller->stage();
        const QString fluid = stage->isFluidActive() ? "moving fluid" : "still fluid";
        return (stage->showsFluid() ? fluid : QString()) + stage->badgeSymbol() +
               (stage->isExpanded() ? ", expanded" : "");
    }

    /// File, caption and symbol of a card.
    QString card(int number) const
    {
        const PhotoLandingStageController *stage = m_controller->stage();
        const auto data = [&](int role) { return stage->data(stage->index(number), role); };
        return data(PhotoLandingStageController::UrlRole).toUrl().fileName() + '/' +
               data(PhotoLandingStageController::CaptionRole).toString() + '/' +
               data(PhotoLandingStageController::SymbolRole).toString();
    }

    std::unique_ptr<ModelFixture> m_fixture;
    std::unique_ptr<MainViewController> m_controller;
};

QTEST_MAIN(MainViewControllerTest)
#include "MainViewControllerTest.moc"
