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

    void shouldShowThreePlaceholdersWithoutHistory()
    {
        QCOMPARE(m_stage->rowCount(), 3);
        for (int card = 0; card < 3; ++card) {
            QCOMPARE(url(card), QUrl());
            QCOMPARE(caption(card), QStringLiteral("Photo"));
            QCOMPARE(symbol(card), QStringLiteral("photo"));
        }
        QCOMPARE(m_stage->badgeSymbol(), QStringLiteral("arrow.down"));
        QVERIFY(!m_stage->isExpanded());
    }

    void shouldFollowAPhotoFromItsLandingUntilTheStageIsIdleAgain()
    {
        QSignalSpy cards(m_stage.get(), &QAbstractItemModel::dataChanged);
        QSignalSpy reset(m_stage.get(), &QAbstractItemModel::modelReset);
        const QUrl source = m_fixture->write(QStringLiteral("IMG_1.HEIC"));
        m_fixture->model().convertManually({source});
        QCOMPARE(url(0), source);
        QVERIFY(m_stage->showsFluid());
        QVERIFY(!m_stage->isFluidActive());
        QCOMPARE(m_stage->badgeSymbol(), QString());

        ModelFixture::turn();
        QVERIFY(m_stage->showsFluid());
        QVERIFY(m_stage->isFluidActive());

        cards.clear();
        QSignalSpy badge(m_stage.get(), &PhotoLandingStageController::changed);
        m_fixture->engine->succeed(QStringLiteral("IMG_1.png"));
        QVERIFY(!cards.isEmpty());
        QVERIFY(!badge.isEmpty());
        QCOMPARE(url(0), m_fixture->url(QStringLiteral("IMG_1.png")));
        QCOMPARE(caption(0), QStringLiteral("Ready"));
        QCOMPARE(symbol(0), QStringLiteral("checkmark"));
        QCOMPARE(caption(1), QStringLiteral("Photo"));
        QCOMPARE(m_stage->badgeSymbol(), QStringLiteral("checkmark"));
        QVERIFY(!m_stage->showsFluid());
        QVERIFY(m_stage->isExpanded());

        m_fixture->jobs->advance(std::chrono::seconds(4));
        QCOMPARE(url(0), m_fixture->url(QStringLiteral("IMG_1.png")));
        QCOMPARE(caption(0), QStringLiteral("Photo"));
        QCOMPARE(m_stage->badgeSymbol(), QStringLiteral("arrow.down"));
        QVERIFY(!m_stage->isExpanded());
        QVERIFY(reset.isEmpty()); // each card keeps its picture
    }

    void shouldShowTheNewestThree()
    {
        for (const char *name : {"1.heic", "2.heic", "3.heic", "4.heic"}) {
            m_fixture->model().convertManually({m_fixture->write(QLatin1String(name))});
        }
        QCOMPARE(url(0).fileName(), QStringLiteral("4.heic"));
        QCOMPARE(url(2).fileName(), QStringLiteral("2.heic"));
    }

    void shouldWarnOfAFailure()
    {
        m_fixture->model().convertManually({m_fixture->write(QStringLiteral("IMG_1.HEIC"))});
        ModelFixture::turn();
        m_fixture->engine->fail(ConversionError::unreadableImage);
        QCOMPARE(m_stage->badgeSymbol(), QStringLiteral("exclamationmark"));
        QVERIFY(!m_stage->isExpanded());
    }

    void shouldFanOutForADragAndForThePointer()
    {
        QSignalSpy changes(m_stage.get(), &PhotoLandingStageController::changed);
        m_fixture->model().setIsDropTargeted(true);
        QVERIFY(m_stage->isTargeted());
        QVERIFY(m_stage->isExpanded());
        m_fixture->model().setIsDropTargeted(false);
        QVERIFY(!m_stage->isExpanded());
        QCOMPARE(changes.size(), 2);
        m_stage->setHovered(true);
        QVERIFY(m_stage->isExpanded());
        QCOMPARE(changes.size(), 3);
    }

private:
    QVariant data(int card, int role) const { return m_stage->data(m_stage->index(card), role); }
    QUrl url(int card) const { return data(card, PhotoLandingStageController::UrlRole).toUrl(); }
    QString caption(int card) const
    {
        return data(card, PhotoLandingStageController::CaptionRole).toString();
    }
    QString symbol(int card) const { return data(card, PhotoLandingStageController::SymbolRole).toString(); }

    std::unique_ptr<ModelFixture> m_fixture;
    std::unique_ptr<PhotoLandingStageController> m_stage;
};

QTEST_MAIN(PhotoLandingStageControllerTest)
#include "PhotoLandingStageControllerTest.moc"
