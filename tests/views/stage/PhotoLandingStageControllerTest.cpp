#include "PhotoLandingStageController.h"

#include "ConversionError.h"
#include "ModelFixture.h"

#include <QSignalSpy>
#include <QTest>

class PhotoLandingStageControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<ModelFixture>();
        m_stage = std::make_unique<PhotoLandingStageController>(m_fixture->launch());
    }

    void cleanup()
    {
        m_stage.reset();
        m_fixture.reset();
    }

    void shouldFollowAPhotoFromItsLandingUntilTheStageIsIdleAgain()
    {
        QCOMPARE(m_stage->rowCount(), 3);
        QCOMPARE(cards(), "/Photo/photo /Photo/photo /Photo/photo");
        QCOMPARE(badge(), "arrow.down");
        QSignalSpy cardChanges(m_stage.get(), &QAbstractItemModel::dataChanged);
        QSignalSpy resets(m_stage.get(), &QAbstractItemModel::modelReset);
        QSignalSpy changes(m_stage.get(), &PhotoLandingStageController::changed);
        m_fixture->model().convertManually({m_fixture->write("1.heic")});
        QCOMPARE(cards(), "1.heic/Photo/photo /Photo/photo /Photo/photo");
        QCOMPARE(badge(), "still fluid");
        ModelFixture::turn();
        QCOMPARE(badge(), "moving fluid");
        cardChanges.clear();
        changes.clear();
        m_fixture->engine->succeed("1.png");
        QVERIFY(!cardChanges.isEmpty());
        QVERIFY(!changes.isEmpty());
        QCOMPARE(cards(), "1.png/Ready/checkmark /Photo/photo /Photo/photo");
        QCOMPARE(badge(), "checkmark, expanded");
        m_fixture->jobs->advance(std::chrono::seconds(4));
        QCOMPARE(cards(), "1.png/Photo/photo /Photo/photo /Photo/photo");
        QCOMPARE(badge(), "arrow.down");
        QVERIFY2(resets.isEmpty(), "each card keeps its picture");
    }

    void shouldShowTheNewestThreeAndWarnOfAFailure()
    {
        for (const char *name : {"1.heic", "2.heic", "3.heic", "4.heic"}) {
            m_fixture->model().convertManually({m_fixture->write(name)});
            ModelFixture::turn();
            m_fixture->engine->fail(ConversionError::unreadableImage);
            QCOMPARE(badge(), "exclamationmark");
        }
        QCOMPARE(cards(), "4.heic/Photo/photo 3.heic/Photo/photo 2.heic/Photo/photo");
    }

    void shouldExpandForADragAndForThePointer()
    {
        QSignalSpy changes(m_stage.get(), &PhotoLandingStageController::changed);
        m_fixture->model().setIsDropTargeted(true);
        QCOMPARE(badge(), "arrow.down, expanded");
        m_fixture->model().setIsDropTargeted(false);
        QCOMPARE(badge(), "arrow.down");
        m_stage->setHovered(true);
        QCOMPARE(badge(), "arrow.down, expanded");
        QCOMPARE(changes.size(), 3);
    }

private:
    /// File, caption and symbol of each card.
    QString cards() const
    {
        QStringList shown;
        for (int card = 0; card < m_stage->rowCount(); ++card) {
            const auto data = [&](int role) { return m_stage->data(m_stage->index(card), role); };
            shown << data(PhotoLandingStageController::UrlRole).toUrl().fileName() + '/' +
                         data(PhotoLandingStageController::CaptionRole).toString() + '/' +
                         data(PhotoLandingStageController::SymbolRole).toString();
        }
        return shown.join(' ');
    }

    QString badge() const
    {
        const QString fluid = m_stage->isFluidActive() ? "moving fluid" : "still fluid";
        return (m_stage->showsFluid() ? fluid : QString()) + m_stage->badgeSymbol() +
               (m_stage->isExpanded() ? ", expanded" : "");
    }

    std::unique_ptr<ModelFixture> m_fixture;
    std::unique_ptr<PhotoLandingStageController> m_stage;
};

QTEST_MAIN(PhotoLandingStageControllerTest)
#include "PhotoLandingStageControllerTest.moc"
