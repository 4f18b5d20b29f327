// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkAlgorthm/INPUT_PARAM.h>
#include <RkAlgorthm/StripPolygon.h>
#include <RkAlgorthm/TaskMileage.h>
#include <RkAlgorthm/Utm.h>
#include <RkBaseUI/AirLineParam.h>
#include <RkData/CRkBlock.h>
#include <RkData/CRkTaskPara.h>

#include <QtTest>

using Ring = std::vector<CRkPoint2D>;

namespace {

const QList<QPointF> area = {{30.60, 104.00}, {30.60, 104.02}, {30.62, 104.02}, {30.62, 104.00}};

Ring inUtm(const QList<QPointF>& outline)
{
    Ring points;
    for (const QPointF& point : outline)
        points.emplace_back(point.x(), point.y());
    LatLng2UTM(points, points);
    return points;
}

/// A record without any default value, to see what was touched.
INPUT_PARAM markedParam()
{
    INPUT_PARAM param;
    param.nBlockType = -7;
    param.vecPolygon = {{7, 7}};
    param.airLineParam.SetRelativeFlyHeight(-7);
    param.vecStripCenterLine = {{8, 8}};
    param.dBandingOffsetLeft = -7;
    param.dBandingOffsetRight = -8;
    param.dAirLineAngle = -77;
    param.dSingleTaskDistance = -7;
    param.dObjectHeight = -7;
    return param;
}

bool isUntouched(const INPUT_PARAM& param)
{
    const INPUT_PARAM marked = markedParam();
    return param.nBlockType == marked.nBlockType && param.vecPolygon == marked.vecPolygon
        && param.airLineParam.GetRelativeFlyHeight() == marked.airLineParam.GetRelativeFlyHeight()
        && param.vecStripCenterLine == marked.vecStripCenterLine
        && param.dBandingOffsetLeft == marked.dBandingOffsetLeft
        && param.dBandingOffsetRight == marked.dBandingOffsetRight
        && param.dAirLineAngle == marked.dAirLineAngle
        && param.dSingleTaskDistance == marked.dSingleTaskDistance
        && param.dObjectHeight == marked.dObjectHeight && param.ePlaneType == PlaneTypeUnknown
        && param.nReturnRouteMode == 0 && param.dPlaneTypeConstant == 0
        && param.nDirectionOfFlight == 0;
}

} // namespace

class tst_AirLineParam : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void everyMember();
    void untouchedOnFailure_data();
    void untouchedOnFailure();
    void failedConversion();
    void flagsAndDirection_data();
    void flagsAndDirection();
    void planeTypeConstant_data();
    void planeTypeConstant();
    void angle();
    void singleTaskDistance_data();
    void singleTaskDistance();
    void heightIsRounded();
    void surroundMargin_data();
    void surroundMargin();
    void stripOutline();
    void stripWithProblems();
    void stripWithoutOutline();
    void bandingOffsetsOfAnArea();

private:
    CRkTaskPara& task() { return *m_block->GetTaskPara(); }
    CRkExtendedTaskParam& extended() { return *task().GetExtendedTaskParam(); }
    void setHeight(double metres)
    {
        CRkAirLineParam airLine;
        airLine.SetRelativeFlyHeight(metres);
        task().SetAirLineParam(airLine);
    }

    std::unique_ptr<CRkBlock> m_block;
    INPUT_PARAM m_param;
};

void tst_AirLineParam::init()
{
    m_param = markedParam();
    m_block = std::make_unique<CRkBlock>();
    m_block->SetBlockType(BlockTypeArea);
    m_block->SetAnchor(area);
    auto parameters = std::make_unique<CRkTaskPara>();
    parameters->SetExtendedTaskParam(std::make_unique<CRkExtendedTaskParam>());
    m_block->SetTaskPara(std::move(parameters));
    setHeight(320);
}

void tst_AirLineParam::everyMember()
{
    task().SetPlaneType(PlaneTypeVerticalTakeOffLight);
    task().SetCameraType(CameraTypeFiveLens120);
    task().SetReturnRoute(true);
    task().SetDefaultAirspeed(17.5);
    task().SetAirLineAngle(33.5);
    task().SetBandingOffset(110, 120);
    task().SetExpectedRouteCount(21);
    task().SetExpectedMissionCount(3);
    task().SetIncludingTransferPoints(true);
    task().SetGenerateFrameRoute(true);
    task().SetLongitudinalOutlineNumber(4);
    task().SetLateralOutlineNumber(5);
    task().SetConnectRoute(true);
    task().SetDirectionOfFlight(2);
    task().SetBlockSingleTaskMileage(12.25);
    extended().SetTaskType(TaskTypeOblique);
    extended().SetSurroundMragin(41.5);
    extended().SetPitchModeOfTilt(6);
    extended().SetRouteGenerateMode(RouteGenerateTerrainFollowing);
    extended().SetCameraOrientation(7);
    extended().SetPhotographMode(8);
    extended().SetMarginBetweenRouteAreaEdge(42.5);
    extended().SetPitchAngleOfTilt(43.5);
    extended().SetFlyingMode(9);
    extended().SetRouteMinHeight(44.5);
    extended().SetObjectHeight(45.5);

    QVERIFY(UpdateAirLineParam(m_block.get(), m_param, false));
    QCOMPARE(m_param.nBlockType, 1);
    QVERIFY(m_param.vecPolygon == inUtm(area));
    QCOMPARE(m_param.airLineParam.GetRelativeFlyHeight(), 320.0);
    QCOMPARE(m_param.ePlaneType, PlaneTypeVerticalTakeOffLight);
    QCOMPARE(m_param.eCameraType, CameraTypeFiveLens120);
    QCOMPARE(m_param.nReturnRouteMode, 2);
    QCOMPARE(m_param.dPlaneTypeConstant, 150.0);
    QCOMPARE(m_param.dSingleTaskDistance, 12250.0);
    QCOMPARE(m_param.dDefaultAirspeed, 17.5);
    QCOMPARE(m_param.dAirLineAngle, 33.5);
    QVERIFY(m_param.vecStripCenterLine == markedParam().vecStripCenterLine);
    QCOMPARE(m_param.dBandingOffsetLeft, 110.0);
    QCOMPARE(m_param.dBandingOffsetRight, 120.0);
    QCOMPARE(m_param.dExpectedRouteCount, 21.0);
    QCOMPARE(m_param.dExpectedMissionCount, 3.0);
    QCOMPARE(m_param.bIncludeTransferPoints, true);
    QCOMPARE(m_param.bGenerateFrameRoute, true);
    QCOMPARE(m_param.nLongitudinalOutlineNumber, 4);
    QCOMPARE(m_param.nLateralOutlineNumber, 5);
    QCOMPARE(m_param.bConnectRoute, true);
    QCOMPARE(m_param.nDirectionOfFlight, 2);
    QCOMPARE(m_param.eTaskType, TaskTypeOblique);
    QCOMPARE(m_param.dSurroundMargin, 41.5);
    QCOMPARE(m_param.nPitchModeOfTilt, 6);
    QCOMPARE(m_param.eRouteGenerateMode, RouteGenerateTerrainFollowing);
    QCOMPARE(m_param.nCameraOrientation, 7);
    QCOMPARE(m_param.nPhotographMode, 8);
    QCOMPARE(m_param.dMarginBetweenRouteAreaEdge, 42.5);
    QCOMPARE(m_param.dPitchAngleOfTilt, 43.5);
    QCOMPARE(m_param.nFlyingMode, 9);
    QCOMPARE(m_param.dRouteMinHeight, 44.5);
    QCOMPARE(m_param.dObjectHeight, 45.5);
    QCOMPARE(task().GetBlockSingleTaskMileage(), 12.25);
}

void tst_AirLineParam::untouchedOnFailure_data()
{
    QTest::addColumn<QString>("missing");
    for (const char* missing : {"block", "parameters", "extended part", "boundary"})
        QTest::newRow(missing) << missing;
}

void tst_AirLineParam::untouchedOnFailure()
{
    QFETCH(QString, missing);
    if (missing == "parameters")
        m_block->SetTaskPara(nullptr);
    if (missing == "extended part")
        task().SetExtendedTaskParam(nullptr);
    if (missing == "boundary")
        m_block->SetAnchor({});
    CRkBlock* const block = missing == "block" ? nullptr : m_block.get();
    QVERIFY(!UpdateAirLineParam(block, m_param, false));
    QVERIFY(!UpdateAirLineParam(block, m_param, true));
    QVERIFY(isUntouched(m_param));
}

void tst_AirLineParam::failedConversion()
{
    m_block->SetAnchor({{30, 104}, {30, 105}, {85, 104}});
    QVERIFY(!UpdateAirLineParam(m_block.get(), m_param, true));
    QCOMPARE(m_param.airLineParam.GetRelativeFlyHeight(), 320.0);
    m_param.airLineParam = markedParam().airLineParam;
    QVERIFY(isUntouched(m_param));
    QCOMPARE(task().GetBlockSingleTaskMileage(), -1.0);
}

void tst_AirLineParam::flagsAndDirection_data()
{
    QTest::addColumn<bool>("returns");
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("expectedMode");
    QTest::addColumn<int>("expectedDirection");
    QTest::newRow("one way, direction not chosen") << false << 0 << 1 << 1;
    QTest::newRow("there and back, forwards") << true << 1 << 2 << 1;
    QTest::newRow("one way, backwards") << false << 2 << 1 << 2;
    QTest::newRow("direction below 0") << false << -1 << 1 << -1;
}

void tst_AirLineParam::flagsAndDirection()
{
    QFETCH(bool, returns);
    QFETCH(int, direction);
    task().SetReturnRoute(returns);
    task().SetDirectionOfFlight(direction);
    m_param.bIncludeTransferPoints = m_param.bGenerateFrameRoute = m_param.bConnectRoute = true;
    QVERIFY(UpdateAirLineParam(m_block.get(), m_param, false));
    QTEST(m_param.nReturnRouteMode, "expectedMode");
    QTEST(m_param.nDirectionOfFlight, "expectedDirection");
    QCOMPARE(task().GetDirectionOfFlight(), direction);
    QCOMPARE(m_param.bIncludeTransferPoints, false);
    QCOMPARE(m_param.bGenerateFrameRoute, false);
    QCOMPARE(m_param.bConnectRoute, false);
}

void tst_AirLineParam::planeTypeConstant_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("expected");
    for (int type = -1; type <= 9; ++type)
        QTest::newRow(qPrintable(QStringLiteral("type %1").arg(type)))
            << type << (type == 4 || type == 6 ? 0.0 : 150.0);
}

void tst_AirLineParam::planeTypeConstant()
{
    QFETCH(int, type);
    task().SetPlaneType(EPlaneType(type));
    QVERIFY(UpdateAirLineParam(m_block.get(), m_param, false));
    QTEST(m_param.dPlaneTypeConstant, "expected");
}

void tst_AirLineParam::angle()
{
    task().SetAirLineAngle(250);
    QVERIFY(UpdateAirLineParam(m_block.get(), m_param, true));
    QCOMPARE(m_param.dAirLineAngle, -1.0);
    QVERIFY(UpdateAirLineParam(m_block.get(), m_param, false));
    QCOMPARE(m_param.dAirLineAngle, 250.0);
    QCOMPARE(task().GetAirLineAngle(), 250.0);
}

void tst_AirLineParam::singleTaskDistance_data()
{
    QTest::addColumn<double>("stored");
    QTest::addColumn<bool>("reset");
    QTest::addColumn<double>("metres");
    QTest::addColumn<double>("kilometres");
    // A quadrotor with five lenses that follows the terrain 320 m up: 15000 * 0.85 * 0.9 - 3200.
    QTest::newRow("not known") << -1.0 << false << 8275.0 << 8.275;
    QTest::newRow("just below 0") << -1e-9 << false << 8275.0 << 8.275;
    QTest::newRow("0 is used") << 0.0 << false << 0.0 << 0.0;
    QTest::newRow("stored") << 2.5 << false << 2500.0 << 2.5;
    QTest::newRow("stored, reset") << 2.5 << true << 8275.0 << 8.275;
    QTest::newRow("0, reset") << 0.0 << true << 8275.0 << 8.275;
    QTest::newRow("not known, reset") << -1.0 << true << 8275.0 << 8.275;
}

void tst_AirLineParam::singleTaskDistance()
{
    QFETCH(double, stored);
    QFETCH(bool, reset);
    task().SetPlaneType(PlaneTypeQuadrotor);
    task().SetCameraType(CameraTypeFiveLens120);
    extended().SetFlyingMode(1);
    task().SetBlockSingleTaskMileage(stored);
    QVERIFY(UpdateAirLineParam(m_block.get(), m_param, reset));
    QTEST(m_param.dSingleTaskDistance, "metres");
    QTEST(task().GetBlockSingleTaskMileage(), "kilometres");
}

void tst_AirLineParam::heightIsRounded()
{
    task().SetPlaneType(PlaneTypeQuadrotor);
    setHeight(320.5);
    QVERIFY(UpdateAirLineParam(m_block.get(), m_param, true));
    QCOMPARE(m_param.dSingleTaskDistance,
             GetSingleTaskMileage(PlaneTypeQuadrotor, CameraTypeUnknown, 0, 321));
    setHeight(320.4);
    QVERIFY(UpdateAirLineParam(m_block.get(), m_param, true));
    QCOMPARE(m_param.dSingleTaskDistance,
             GetSingleTaskMileage(PlaneTypeQuadrotor, CameraTypeUnknown, 0, 320));
}

void tst_AirLineParam::surroundMargin_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("expected");
    QTest::newRow("orthophoto") << 0 << 41.5;
    QTest::newRow("oblique") << 1 << 41.5;
    QTest::newRow("surround") << 2 << 320.0;
    QTest::newRow("another") << 3 << 41.5;
}

void tst_AirLineParam::surroundMargin()
{
    QFETCH(int, type);
    QFETCH(double, expected);
    extended().SetTaskType(ETaskType(type));
    extended().SetSurroundMragin(41.5);
    QVERIFY(UpdateAirLineParam(m_block.get(), m_param, false));
    QCOMPARE(m_param.dSurroundMargin, expected);
    QCOMPARE(extended().GetSurroundMragin(), expected);
}

void tst_AirLineParam::stripOutline()
{
    const QList<QPointF> line = {{30.60, 104.00}, {30.61, 104.02}, {30.61, 104.04}};
    m_block->SetBlockType(BlockTypeStrip);
    m_block->SetAnchor(line);
    task().SetBandingOffset(100, 40);
    QVERIFY(UpdateAirLineParam(m_block.get(), m_param, false));
    QCOMPARE(m_param.nBlockType, 2);
    QVERIFY(m_param.vecStripCenterLine == inUtm(line));
    QCOMPARE(m_param.dBandingOffsetLeft, 100.0);
    QCOMPARE(m_param.dBandingOffsetRight, 40.0);

    Ring expected;
    QList<int> problems;
    QVERIFY(CreateStripPolygon(inUtm(line), -100, 40, expected, problems));
    QVERIFY(problems.isEmpty());
    QVERIFY(m_param.vecPolygon == expected);
}

void tst_AirLineParam::stripWithProblems()
{
    // The outline can be built, but the line turns back within the strip.
    const QList<QPointF> line = {{30.60, 104.00}, {30.60, 104.02}, {30.6001, 104.00}};
    m_block->SetBlockType(BlockTypeStrip);
    m_block->SetAnchor(line);
    task().SetBandingOffset(100, 100);
    Ring outline;
    QList<int> problems;
    QVERIFY(CreateStripPolygon(inUtm(line), -100, 100, outline, problems));
    QVERIFY(!problems.isEmpty());

    QVERIFY(!UpdateAirLineParam(m_block.get(), m_param, true));
    QVERIFY(m_param.vecPolygon == markedParam().vecPolygon);
    QVERIFY(m_param.vecStripCenterLine == inUtm(line));
    QCOMPARE(m_param.nBlockType, markedParam().nBlockType);
    QCOMPARE(m_param.dObjectHeight, -7.0);
    QCOMPARE(task().GetBlockSingleTaskMileage(), -1.0);
}

void tst_AirLineParam::stripWithoutOutline()
{
    m_block->SetBlockType(BlockTypeStrip);
    m_block->SetAnchor({{30.60, 104.00}});
    task().SetBandingOffset(100, 100);
    QVERIFY(!UpdateAirLineParam(m_block.get(), m_param, true));
    QVERIFY(m_param.vecPolygon == markedParam().vecPolygon);
}

void tst_AirLineParam::bandingOffsetsOfAnArea()
{
    task().SetBandingOffset(11, 12);
    m_block->SetBlockType(BlockTypeNone);
    QVERIFY(UpdateAirLineParam(m_block.get(), m_param, false));
    QCOMPARE(m_param.nBlockType, 0);
    QCOMPARE(m_param.dBandingOffsetLeft, 11.0);
    QCOMPARE(m_param.dBandingOffsetRight, 12.0);
    QVERIFY(m_param.vecPolygon == inUtm(area));
}

QTEST_GUILESS_MAIN(tst_AirLineParam)
#include "tst_AirLineParam.moc"
