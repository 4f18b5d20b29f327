// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <QCoreApplication>
#include <QMap>
#include <QPolygonF>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QtTest>

#include <algorithm>
#include <random>
#include <vector>

/// The catalogue as the build makes it, looked at through its own SQLite file.
class tst_CityData : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void counts();
    void citiesOfEachProvince();
    void provincesHaveNoBoundary();
    void everyCityIsListedUnderItsProvince();
    void everyCityIsListedUnderItsLetter();
    void lettersFollowTheChineseName_data();
    void lettersFollowTheChineseName();
    void lettersAreInitialsElsewhere();
    void namesAreUnique();
    void boundariesAreWellFormed();
    void everyCentreLiesInItsOwnBoundaryFirst();
    void provinceCentresLieInTheProvince();
    void knownPlaces_data();
    void knownPlaces();
    void placesAbroad_data();
    void placesAbroad();
    void changesOfBoundaries_data();
    void changesOfBoundaries();
    void changesOfNames_data();
    void changesOfNames();
    void noPointLiesInTwoCities();
    void frequentCities_data();
    void frequentCities();

private:
    struct Place
    {
        int id = 0;
        QString name;
        QString letter;
        int parentId = 0;
        int level = 0;
        QPointF centre; ///< x latitude, y longitude
        QPolygonF boundary; ///< x latitude, y longitude; joined rings for the odd-even rule
    };

    std::vector<const Place*> placesAt(const QPointF& point) const;
    QString cityAt(double lat, double lng) const;
    const Place* byName(const QString& name) const;
    static QString latinName(const Place& place);

    std::vector<Place> m_places;
    std::vector<const Place*> m_provinces;
    std::vector<const Place*> m_cities;
    std::vector<QRectF> m_boxes; ///< of m_cities, one each
};

namespace {

const QString connectionName = QStringLiteral("CityData");

/// Reads "lng,lat;lng,lat"; an empty polygon when anything in it is not a number.
QPolygonF parsePolyline(const QString& text)
{
    QPolygonF polygon;
    const QStringList points = text.split(QLatin1Char(';'));
    for (const QString& point : points) {
        const QStringList parts = point.split(QLatin1Char(','));
        bool lngOk = false;
        bool latOk = false;
        const double lng = parts.value(0).toDouble(&lngOk);
        const double lat = parts.value(1).toDouble(&latOk);
        if (parts.size() != 2 || !lngOk || !latOk)
            return QPolygonF();
        polygon << QPointF(lat, lng);
    }
    return polygon;
}

/// Runs the query on the catalogue's connection and gives back its first column.
QStringList column(const QString& sql)
{
    QStringList values;
    QSqlQuery query(QSqlDatabase::database(connectionName));
    if (!query.exec(sql))
        qWarning("%s", qPrintable(query.lastError().text()));
    while (query.next())
        values << query.value(0).toString();
    return values;
}

void knownPlace(const char* place, double lat, double lng, const char* city)
{
    QTest::newRow(place) << lat << lng << QString::fromUtf8(city);
}

} // namespace

void tst_CityData::initTestCase()
{
    const QString file =
        QCoreApplication::applicationDirPath() + QStringLiteral("/ChinaAdminiDstrict.db");
    QVERIFY2(QFile::exists(file), qPrintable(file));
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName);
    database.setDatabaseName(file);
    database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    QVERIFY(database.open());

    QSqlQuery query(database);
    QVERIFY(query.exec(
        QStringLiteral("select id,name,letter,parent_id,level,lat,lng,polyline from city")));
    while (query.next()) {
        Place place;
        place.id = query.value(0).toInt();
        place.name = query.value(1).toString();
        place.letter = query.value(2).toString();
        place.parentId = query.value(3).toInt();
        place.level = query.value(4).toInt();
        place.centre = QPointF(query.value(5).toDouble(), query.value(6).toDouble());
        place.boundary = parsePolyline(query.value(7).toString());
        m_places.push_back(place);
    }
    for (const Place& place : m_places)
        (place.parentId == 1 ? m_provinces : m_cities).push_back(&place);
    for (const Place* city : m_cities)
        m_boxes.push_back(city->boundary.boundingRect());
}

void tst_CityData::cleanupTestCase()
{
    QSqlDatabase::removeDatabase(connectionName);
}

std::vector<const tst_CityData::Place*> tst_CityData::placesAt(const QPointF& point) const
{
    std::vector<const Place*> found;
    for (std::size_t i = 0; i < m_cities.size(); ++i) {
        if (m_boxes[i].contains(point)
            && m_cities[i]->boundary.containsPoint(point, Qt::OddEvenFill)) {
            found.push_back(m_cities[i]);
        }
    }
    return found;
}

QString tst_CityData::cityAt(double lat, double lng) const
{
    const std::vector<const Place*> found = placesAt(QPointF(lat, lng));
    return found.empty() ? QString() : found.front()->name;
}

const tst_CityData::Place* tst_CityData::byName(const QString& name) const
{
    for (const Place& place : m_places) {
        if (place.name == name)
            return &place;
    }
    return nullptr;
}

/// The Latin half holds blanks of its own, the Chinese half none.
QString tst_CityData::latinName(const Place& place)
{
    return place.name.left(place.name.lastIndexOf(QLatin1Char(' ')));
}

void tst_CityData::counts()
{
    QCOMPARE(m_provinces.size(), std::size_t(34));
    QCOMPARE(m_cities.size(), std::size_t(363));
    QCOMPARE(column(QStringLiteral("select id from city where level = 2")).size(), 363);
    // A row with the number of the provinces' parent would be a place that no list shows.
    QVERIFY(column(QStringLiteral("select id from city where id = 1")).isEmpty());
    QCOMPARE(column(QStringLiteral("select name from sqlite_master where type = 'index' "
                                   "and tbl_name = 'city' order by name")),
             QStringList({QStringLiteral("city_level"), QStringLiteral("city_name")}));
}

/// The units of prefecture level at the end of 2023, without Sansha, and the ones directly below
/// the province.
void tst_CityData::citiesOfEachProvince()
{
    const QMap<QString, int> expected = {
        {"Beijing", 1},   {"Tianjin", 1},    {"Hebei", 11},          {"Shanxi", 11},
        {"Liaoning", 14}, {"Jilin", 9},      {"Heilongjiang", 13},   {"Shanghai", 1},
        {"Jiangsu", 13},  {"Zhejiang", 11},  {"Anhui", 16},          {"Fujian", 9},
        {"Jiangxi", 11},  {"Shandong", 16},  {"Henan", 17 + 1},      {"Hubei", 13 + 4},
        {"Hunan", 14},    {"Guangdong", 21}, {"Guangxi", 14},        {"Hainan", 3 + 15},
        {"Chongqing", 1}, {"Sichuan", 21},   {"Guizhou", 9},         {"Yunnan", 16},
        {"Tibet", 7},     {"Shaanxi", 10},   {"Gansu", 14},          {"Qinghai", 8},
        {"Ningxia", 5},   {"Taiwan", 1},     {"Inner Mongolia", 12}, {"Xinjiang", 14 + 4},
        {"Hong Kong", 1}, {"Macao", 1},
    };
    QMap<QString, int> found;
    for (const Place* province : m_provinces) {
        const auto isItsCity = [province](const Place* city) {
            return city->parentId == province->id;
        };
        found[latinName(*province)] =
            int(std::count_if(m_cities.cbegin(), m_cities.cend(), isItsCity));
    }
    QCOMPARE(found, expected);
}

void tst_CityData::provincesHaveNoBoundary()
{
    for (const Place* province : m_provinces) {
        QCOMPARE(province->level, 1);
        QVERIFY2(province->boundary.isEmpty(), qPrintable(province->name));
    }
}

void tst_CityData::everyCityIsListedUnderItsProvince()
{
    QSet<QString> listed;
    for (const Place* province : m_provinces) {
        const QStringList cities = column(QStringLiteral("select name from city where parent_id = "
                                                         "(select id from city where name = '%1' "
                                                         "and parent_id = 1)")
                                              .arg(province->name));
        QVERIFY2(!cities.isEmpty(), qPrintable(province->name));
        for (const QString& city : cities) {
            QVERIFY2(!listed.contains(city), qPrintable(city));
            listed.insert(city);
            // The codes nest, so a city put below another province shows.
            QCOMPARE(byName(city)->id / 10000, province->id / 10000);
        }
    }
    QCOMPARE(listed.size(), int(m_cities.size()));
}

void tst_CityData::everyCityIsListedUnderItsLetter()
{
    const QStringList letters = column(QStringLiteral("select distinct letter from city"));
    QSet<QString> listed;
    for (const QString& letter : letters) {
        QCOMPARE(letter.size(), 1);
        QVERIFY2(letter.at(0) >= QLatin1Char('A') && letter.at(0) <= QLatin1Char('Z'),
                 qPrintable(letter));
        const QStringList cities =
            column(QStringLiteral("select name from city where parent_id <> 1 and letter = '%1'")
                       .arg(letter));
        for (const QString& city : cities) {
            QVERIFY2(!listed.contains(city), qPrintable(city));
            listed.insert(city);
        }
    }
    QCOMPARE(listed.size(), int(m_cities.size()));
}

void tst_CityData::lettersFollowTheChineseName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("letter");
    const auto row = [](const char* name, const char* letter) {
        QTest::newRow(name) << QString::fromUtf8(name) << QString::fromLatin1(letter);
    };
    row("Chongqing City 重庆市", "C");
    row("Xiamen 厦门市", "X");
    row("Urumqi 乌鲁木齐市", "W");
    row("Hohhot 呼和浩特市", "H");
    row("Lhasa 拉萨市", "L");
    row("Harbin 哈尔滨市", "H");
    row("Ordos 鄂尔多斯市", "E");
    row("Xigaze 日喀则市", "R");
    row("Kashgar 喀什地区", "K");
    row("Hong Kong 香港", "X");
    row("Macao 澳门", "A");
    row("Inner Mongolia 内蒙古", "N");
    row("Tibet 西藏", "X");
    row("Shaanxi 陕西", "S");
    row("Shanxi 山西", "S");
}

void tst_CityData::lettersFollowTheChineseName()
{
    QFETCH(QString, name);
    QFETCH(QString, letter);
    const Place* place = byName(name);
    QVERIFY(place != nullptr);
    QCOMPARE(place->letter, letter);
}

void tst_CityData::lettersAreInitialsElsewhere()
{
    // Their usual Latin names are no pinyin of the Chinese ones.
    const QSet<QString> spelledOtherwise = {"Inner Mongolia", "Ordos",  "Ulanqab",  "Hinggan",
                                            "Tibet",          "Xigaze", "Qamdo",    "Nyingchi",
                                            "Ngari",          "Urumqi", "Ili",      "Hong Kong",
                                            "Hong Kong SAR",  "Macao",  "Macao SAR"};
    QSet<QString> otherLetters;
    for (const Place& place : m_places) {
        if (!place.name.startsWith(place.letter))
            otherLetters.insert(latinName(place));
    }
    QCOMPARE(otherLetters, spelledOtherwise);
}

void tst_CityData::namesAreUnique()
{
    QSet<QString> full;
    QSet<QString> latin;
    QSet<QString> chinese;
    for (const Place& place : m_places) {
        const int gap = place.name.lastIndexOf(QLatin1Char(' '));
        QVERIFY2(gap > 0, qPrintable(place.name));
        QVERIFY2(!place.name.contains(QLatin1Char('\'')), qPrintable(place.name));
        full.insert(place.name);
        latin.insert(latinName(place));
        chinese.insert(place.name.mid(gap + 1));
    }
    QCOMPARE(full.size(), int(m_places.size()));
    QCOMPARE(latin.size(), int(m_places.size()));
    QCOMPARE(chinese.size(), int(m_places.size()));
}

void tst_CityData::boundariesAreWellFormed()
{
    for (const Place* city : m_cities) {
        QCOMPARE(city->level, 2);
        QVERIFY2(city->boundary.size() >= 4, qPrintable(city->name));
        QVERIFY2(city->boundary.isClosed(), qPrintable(city->name));
        const QRectF country(QPointF(17.0, 73.0), QPointF(54.0, 136.0));
        QVERIFY2(country.contains(city->boundary.boundingRect()), qPrintable(city->name));
    }
}

void tst_CityData::everyCentreLiesInItsOwnBoundaryFirst()
{
    for (const Place* city : m_cities)
        QCOMPARE(cityAt(city->centre.x(), city->centre.y()), city->name);
}

void tst_CityData::provinceCentresLieInTheProvince()
{
    for (const Place* province : m_provinces) {
        const std::vector<const Place*> found = placesAt(province->centre);
        QVERIFY2(!found.empty(), qPrintable(province->name));
        QCOMPARE(found.front()->parentId, province->id);
    }
}

void tst_CityData::knownPlaces_data()
{
    QTest::addColumn<double>("lat");
    QTest::addColumn<double>("lng");
    QTest::addColumn<QString>("city");
    knownPlace("Forbidden City", 39.916, 116.397, "Beijing City 北京市");
    knownPlace("Great Wall at Badaling", 40.356, 116.016, "Beijing City 北京市");
    knownPlace("Tianjin Eye", 39.153, 117.186, "Tianjin City 天津市");
    knownPlace("Oriental Pearl Tower", 31.240, 121.500, "Shanghai City 上海市");
    knownPlace("Dazu rock carvings", 29.747, 105.795, "Chongqing City 重庆市");
    knownPlace("Mountain Resort", 40.988, 117.938, "Chengde 承德市");
    knownPlace("Shanhai Pass", 40.009, 119.754, "Qinhuangdao 秦皇岛市");
    knownPlace("Yungang Grottoes", 40.110, 113.132, "Datong 大同市");
    knownPlace("Pingyao old town", 37.202, 112.181, "Jinzhong 晋中市");
    knownPlace("Mausoleum of Genghis Khan", 39.366, 109.783, "Ordos 鄂尔多斯市");
    knownPlace("Manzhouli", 49.590, 117.430, "Hulunbuir 呼伦贝尔市");
    knownPlace("Mukden Palace", 41.797, 123.450, "Shenyang 沈阳市");
    knownPlace("Saint Sophia Cathedral", 45.770, 126.627, "Harbin 哈尔滨市");
    knownPlace("Sun Yat-sen Mausoleum", 32.064, 118.848, "Nanjing 南京市");
    knownPlace("Humble Administrator's Garden", 31.324, 120.629, "Suzhou (Jiangsu) 苏州市");
    knownPlace("Slender West Lake", 32.411, 119.417, "Yangzhou 扬州市");
    knownPlace("West Lake", 30.245, 120.145, "Hangzhou 杭州市");
    knownPlace("Mount Putuo", 30.006, 122.385, "Zhoushan 舟山市");
    knownPlace("Mount Huang", 30.131, 118.168, "Huangshan 黄山市");
    knownPlace("Gulangyu", 24.446, 118.067, "Xiamen 厦门市");
    knownPlace("Mount Lu", 29.560, 115.980, "Jiujiang 九江市");
    knownPlace("Mount Tai", 36.256, 117.101, "Taian 泰安市");
    knownPlace("Temple of Confucius", 35.597, 116.991, "Jining 济宁市");
    knownPlace("Longmen Grottoes", 34.555, 112.470, "Luoyang 洛阳市");
    knownPlace("Shaolin Temple", 34.508, 112.935, "Zhengzhou 郑州市");
    knownPlace("Yellow Crane Tower", 30.544, 114.302, "Wuhan 武汉市");
    knownPlace("Three Gorges Dam", 30.823, 111.003, "Yichang 宜昌市");
    knownPlace("Fenghuang old town", 27.948, 109.599, "Xiangxi 湘西土家族苗族自治州");
    knownPlace("Canton Tower", 23.106, 113.324, "Guangzhou 广州市");
    knownPlace("Window of the World", 22.537, 113.973, "Shenzhen 深圳市");
    knownPlace("Elephant Trunk Hill", 25.267, 110.296, "Guilin 桂林市");
    knownPlace("Nanshan Temple", 18.300, 109.208, "Sanya 三亚市");
    knownPlace("Leshan Giant Buddha", 29.544, 103.773, "Leshan 乐山市");
    knownPlace("Giant panda base", 30.733, 104.145, "Chengdu 成都市");
    knownPlace("Jiuzhai Valley", 33.200, 103.900, "Aba 阿坝藏族羌族自治州");
    knownPlace("Huangguoshu Falls", 25.992, 105.667, "Anshun 安顺市");
    knownPlace("Stone Forest", 24.816, 103.325, "Kunming 昆明市");
    knownPlace("Dali old town", 25.694, 100.163, "Dali 大理白族自治州");
    knownPlace("Potala Palace", 29.658, 91.117, "Lhasa 拉萨市");
    knownPlace("Tashilhunpo Monastery", 29.268, 88.869, "Xigaze 日喀则市");
    knownPlace("Terracotta Army", 34.385, 109.278, "Xian 西安市");
    knownPlace("Mogao Caves", 40.042, 94.804, "Jiuquan 酒泉市");
    knownPlace("Jiayu Pass", 39.801, 98.215, "Jiayuguan 嘉峪关市");
    knownPlace("Kumbum Monastery", 36.490, 101.571, "Xining 西宁市");
    knownPlace("Western Xia tombs", 38.435, 105.985, "Yinchuan 银川市");
    knownPlace("Id Kah Mosque", 39.472, 75.984, "Kashgar 喀什地区");
    knownPlace("Kanas Lake", 48.720, 87.020, "Altay 阿勒泰地区");
    knownPlace("Victoria Peak", 22.271, 114.150, "Hong Kong SAR 香港特别行政区");
    knownPlace("Ruins of Saint Paul's", 22.1976, 113.5410, "Macao SAR 澳门特别行政区");
    knownPlace("Taipei 101", 25.034, 121.565, "Taiwan Province 台湾省");
    // So close to a border that boundaries left in GCJ-02 would miss them.
    knownPlace("Lok Ma Chau Station", 22.5147, 114.0655, "Hong Kong SAR 香港特别行政区");
    knownPlace("Lin Fung Temple", 22.2120, 113.5468, "Macao SAR 澳门特别行政区");
}

void tst_CityData::knownPlaces()
{
    QFETCH(double, lat);
    QFETCH(double, lng);
    QFETCH(QString, city);
    QCOMPARE(cityAt(lat, lng), city);
}

void tst_CityData::placesAbroad_data()
{
    QTest::addColumn<double>("lat");
    QTest::addColumn<double>("lng");
    QTest::newRow("Hanoi") << 21.03 << 105.85;
    QTest::newRow("Pyongyang") << 39.03 << 125.75;
    QTest::newRow("Ulaanbaatar") << 47.92 << 106.92;
    QTest::newRow("Vladivostok") << 43.12 << 131.89;
    QTest::newRow("Almaty") << 43.24 << 76.89;
    QTest::newRow("Kathmandu") << 27.71 << 85.32;
    QTest::newRow("Pacific") << 25.00 << 128.00;
}

void tst_CityData::placesAbroad()
{
    QFETCH(double, lat);
    QFETCH(double, lng);
    QCOMPARE(cityAt(lat, lng), QString());
}

void tst_CityData::changesOfBoundaries_data()
{
    QTest::addColumn<double>("lat");
    QTest::addColumn<double>("lng");
    QTest::addColumn<QString>("city");
    knownPlace("Chaohu now of Hefei", 31.62, 117.86, "Hefei 合肥市");
    knownPlace("Wuwei now of Wuhu", 31.30, 117.90, "Wuhu 芜湖市");
    knownPlace("Hexian now of Maanshan", 31.72, 118.37, "Maanshan 马鞍山市");
    knownPlace("Laiwu now of Jinan", 36.21, 117.66, "Jinan 济南市");
    knownPlace("Zongyang now of Tongling", 30.70, 117.22, "Tongling 铜陵市");
    knownPlace("Shouxian now of Huainan", 32.58, 116.79, "Huainan 淮南市");
    knownPlace("Jianyang now of Chengdu", 30.39, 104.55, "Chengdu 成都市");
    knownPlace("Gongzhuling now of Changchun", 43.51, 124.82, "Changchun 长春市");
    knownPlace("Jiyuan apart from Jiaozuo", 35.09, 112.60, "Jiyuan 济源市");
    knownPlace("Kinmen apart from Quanzhou", 24.44, 118.36, "Taiwan Province 台湾省");
}

void tst_CityData::changesOfBoundaries()
{
    knownPlaces();
}

void tst_CityData::changesOfNames_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("past");
    const auto row = [](const char* change, int code, const char* name, const char* past) {
        QTest::newRow(change) << code << QString::fromUtf8(name) << QString::fromUtf8(past);
    };
    row("Xiangfan renamed", 420600, "Xiangyang 襄阳市", "襄樊");
    row("Bijie a city", 520500, "Bijie 毕节市", "毕节地区");
    row("Tongren a city", 520600, "Tongren 铜仁市", "铜仁地区");
    row("Haidong a city", 630200, "Haidong 海东市", "海东地区");
    row("Xigaze a city", 540200, "Xigaze 日喀则市", "日喀则地区");
    row("Qamdo a city", 540300, "Qamdo 昌都市", "昌都地区");
    row("Nyingchi a city", 540400, "Nyingchi 林芝市", "林芝地区");
    row("Shannan a city", 540500, "Shannan 山南市", "山南地区");
    row("Nagqu a city", 540600, "Nagqu 那曲市", "那曲地区");
    row("Turpan a city", 650400, "Turpan 吐鲁番市", "吐鲁番地区");
    row("Hami a city", 650500, "Hami 哈密市", "哈密地区");
    row("Danzhou of prefecture level", 460400, "Danzhou 儋州市", "Danzhou City");
    row("Chaohu dissolved into Hefei and others", 340100, "Hefei 合肥市", "Chaohu");
    row("Laiwu merged into Jinan", 370100, "Jinan 济南市", "Laiwu");
}

void tst_CityData::changesOfNames()
{
    QFETCH(int, code);
    QFETCH(QString, name);
    QFETCH(QString, past);
    QVERIFY(byName(name) != nullptr);
    QCOMPARE(byName(name)->id, code);
    for (const Place& place : m_places)
        QVERIFY2(!place.name.contains(past), qPrintable(place.name));
}

void tst_CityData::noPointLiesInTwoCities()
{
    std::mt19937 random(20231231);
    std::uniform_real_distribution<double> latitude(18.0, 54.0);
    std::uniform_real_distribution<double> longitude(73.0, 136.0);
    int inside = 0;
    for (int i = 0; i < 300000; ++i) {
        const QPointF point(latitude(random), longitude(random));
        const std::vector<const Place*> found = placesAt(point);
        inside += found.empty() ? 0 : 1;
        QVERIFY2(found.size() <= 1,
                 qPrintable(QStringLiteral("%1,%2").arg(point.x()).arg(point.y())));
    }
    // The country fills about half of the box; empty boundaries would pass without this.
    QVERIFY2(inside > 100000, qPrintable(QString::number(inside)));
}

void tst_CityData::frequentCities_data()
{
    QTest::addColumn<QString>("latin");
    QTest::addColumn<QString>("chinese");
    QTest::newRow("Beijing") << "Beijing" << QStringLiteral("北京");
    QTest::newRow("Shanghai") << "Shanghai" << QStringLiteral("上海");
    QTest::newRow("Guangzhou") << "Guangzhou" << QStringLiteral("广州");
    QTest::newRow("Shenzhen") << "Shenzhen" << QStringLiteral("深圳");
    QTest::newRow("Chengdu") << "Chengdu" << QStringLiteral("成都");
    QTest::newRow("Tianjin") << "Tianjin" << QStringLiteral("天津");
    QTest::newRow("Nanjing") << "Nanjing" << QStringLiteral("南京");
    QTest::newRow("Hangzhou") << "Hangzhou" << QStringLiteral("杭州");
    QTest::newRow("Wuhan") << "Wuhan" << QStringLiteral("武汉");
    QTest::newRow("Chongqing") << "Chongqing" << QStringLiteral("重庆");
}

void tst_CityData::frequentCities()
{
    QFETCH(QString, latin);
    QFETCH(QString, chinese);
    // As a filter sees them: "Hangzhou" is no part of "Zhangzhou" or "Changzhou" as spelt.
    QStringList cities;
    for (const Place* city : m_cities) {
        if (city->name.contains(latin))
            cities << city->name;
    }
    QCOMPARE(cities.size(), 1);
    QVERIFY(cities.first().contains(chinese));

    for (const QString& keyword : {latin, chinese}) {
        const QStringList found =
            column(QStringLiteral("select name from city where name like '%%1%'").arg(keyword));
        QVERIFY2(found.contains(cities.first()), qPrintable(keyword));
    }
}

QTEST_GUILESS_MAIN(tst_CityData)
#include "tst_CityData.moc"
