<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Gallery</name>
    <message>
        <source>Save Project As</source>
        <translation>项目另存为</translation>
    </message>
    <message>
        <source>River Embankment Inspection</source>
        <translation>沿江防洪堤巡检</translation>
    </message>
    <message>
        <source>Take the flights along</source>
        <translation>同时复制架次</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>比例尺</translation>
    </message>
    <message>
        <source>A tool window without a frame. Drag it anywhere.</source>
        <translation>无边框工具窗口，可在任意位置拖动。</translation>
    </message>
</context>
<context>
    <name>HostWindow</name>
    <message>
        <source>Vantrell</source>
        <translation>Vantrell</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>新建项目</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>地区</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>修改时间</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>关键词</translation>
    </message>
    <message>
        <source>Search projects</source>
        <translation>搜索项目</translation>
    </message>
    <message>
        <source>Survey projects</source>
        <translation>航测项目</translation>
    </message>
    <message>
        <source>No projects to show</source>
        <translation>没有符合条件的项目</translation>
    </message>
    <message>
        <source>All places</source>
        <translation>全部地区</translation>
    </message>
    <message>
        <source>Any time</source>
        <translation>全部时间</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>最近一周</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>最近一个月</translation>
    </message>
    <message>
        <source>Last half year</source>
        <translation>最近半年</translation>
    </message>
    <message>
        <source>1 project</source>
        <translation>1 个项目</translation>
    </message>
    <message>
        <source>%1 projects</source>
        <translation>%1 个项目</translation>
    </message>
    <message>
        <source>Opened: %1</source>
        <translation>已打开：%1</translation>
    </message>
</context>
</TS>
