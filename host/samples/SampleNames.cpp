// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "samples/SampleNames.h"

#include <QRandomGenerator>
#include <QStringList>

#include <algorithm>

namespace {

struct Vocabulary
{
    QStringList areas;
    QStringList areaProducts;
    QStringList corridors;
    QStringList corridorProducts;
    QString pattern; ///< Place, object, product.
    QString longPattern; ///< The same for a long name.
};

const Vocabulary& vocabulary(SampleLanguage language)
{
    static const Vocabulary english = {
        {"North New Town", "Old Town", "Airport Clearance Zone", "Industrial Park", "Reservoir",
         "Open-pit Mine", "Wetland Park", "Forest Park", "Terraced Fields", "High-tech Zone",
         "Landfill", "Limestone Quarry", "Logistics Park", "University Campus", "Solar Farm",
         "Flood Plain"},
        {"Cadastral Survey 1-500", "3D Model", "Orthophoto %1", "Oblique Photography",
         "Topographic Map 1-1000", "Land Use Update %1", "Digital Surface Model",
         "Change Detection %1"},
        {"Ring Expressway", "220 kV Power Line", "Main Canal", "River Embankment", "Gas Pipeline",
         "Railway Corridor", "National Highway", "Bypass Road"},
        {"Strip Survey 1-2000", "Corridor Mapping", "Widening Survey", "Inspection %1",
         "Orthophoto %1"},
        "%1 %2 %3",
        "%1 %2 %3 and Digital Surface Model Update, Phase 2, Lot 3 (re-flight)"};
    static const Vocabulary chinese = {
        {"滨江新区", "老城区", "机场净空区", "高新技术产业园", "水库库区", "露天矿区", "湿地公园",
         "森林公园", "高标准农田", "大学城", "物流园区", "石灰石矿山", "光伏电站", "高铁站片区",
         "填埋场", "棚改片区"},
        {"地籍调查", "实景三维建模", "%1年正射影像", "变化监测", "1比500地形图测绘",
         "1比2000地形图测绘", "国土变更调查", "倾斜摄影"},
        {"绕城高速", "220千伏输电线路", "引水干渠", "沿江防洪堤", "天然气管线", "铁路专用线",
         "国道改扩建", "快速路"},
        {"带状地形图测绘", "线路巡检", "勘察测量", "%1年正射影像", "沿线三维建模"},
        "%1%2%3",
        "%1%2%3及数字表面模型更新项目（二期第三标段补飞）"};
    return language == SampleLanguage::English ? english : chinese;
}

/// The catalogue writes names in Latin letters first and in Chinese behind a blank.
QString placeName(const QString& city, SampleLanguage language)
{
    const auto firstChinese = std::find_if(city.cbegin(), city.cend(),
                                           [](QChar c) { return c.script() == QChar::Script_Han; });
    const int latinLength = int(std::distance(city.cbegin(), firstChinese));
    const QString latin = city.left(latinLength).trimmed();
    const QString han = city.mid(latinLength);
    if (language == SampleLanguage::English)
        return latin.isEmpty() ? han : latin;
    return han.isEmpty() ? latin : han;
}

QString pick(const QStringList& texts, QRandomGenerator& random)
{
    return texts[random.bounded(int(texts.size()))];
}

} // namespace

SampleNames::SampleNames(int year)
    : m_year(year)
{
}

QString SampleNames::make(const QString& city, SampleLanguage language, bool isCorridor,
                          QRandomGenerator& random)
{
    const Vocabulary& words = vocabulary(language);
    const QString object = pick(isCorridor ? words.corridors : words.areas, random);
    QString product = pick(isCorridor ? words.corridorProducts : words.areaProducts, random);
    product.replace(QLatin1String("%1"), QString::number(m_year));
    const QString& pattern = random.bounded(8) == 0 ? words.longPattern : words.pattern;
    return uniqueName(pattern.arg(placeName(city, language), object, product), language);
}

QString SampleNames::uniqueName(const QString& name, SampleLanguage language)
{
    const QString pattern = language == SampleLanguage::English ? QStringLiteral("%1, Lot %2")
                                                                : QStringLiteral("%1（%2标段）");
    QString candidate = name;
    for (int lot = 2; m_taken.contains(candidate.toLower()); ++lot)
        candidate = pattern.arg(name).arg(lot);
    m_taken.insert(candidate.toLower());
    return candidate;
}

QString sampleBlockName(int number, bool isStrip, SampleLanguage language)
{
    if (language == SampleLanguage::Chinese)
        return (isStrip ? QStringLiteral("航带%1") : QStringLiteral("测区%1")).arg(number + 1);
    return (isStrip ? QStringLiteral("Strip %1") : QStringLiteral("Block %1")).arg(number + 1);
}
