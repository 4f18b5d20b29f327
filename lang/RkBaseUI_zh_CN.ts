<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>CRkActionView</name>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
</context>
<context>
    <name>CRkBaseDialog</name>
    <message>
        <source>Dialog</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>徽标</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Vantrell</source>
        <translation>Vantrell</translation>
    </message>
</context>
<context>
    <name>CRkGraphicsProjectTextItem</name>
    <message>
        <source>Name:%1
 Size:%2
 Modification time:%3</source>
        <translation>名称：%1
 大小：%2
 修改时间：%3</translation>
    </message>
</context>
<context>
    <name>CRkParameterEditPage</name>
    <message>
        <source>Parameter 1</source>
        <translation>参数 1</translation>
    </message>
    <message>
        <source>Parameter 2</source>
        <translation>参数 2</translation>
    </message>
    <message>
        <source>Parameter 3</source>
        <translation>参数 3</translation>
    </message>
    <message>
        <source>Parameter 4</source>
        <translation>参数 4</translation>
    </message>
</context>
<context>
    <name>CRkMenuButton</name>
    <message>
        <source>Alt+Down opens the list of tools</source>
        <translation>按 Alt+向下键打开工具列表</translation>
    </message>
</context>
<context>
    <name>CRkProcessDialog</name>
    <message>
        <source>Busy</source>
        <translation>忙碌</translation>
    </message>
    <message>
        <source>Vantrell</source>
        <translation>Vantrell</translation>
    </message>
</context>
<context>
    <name>CRkProgressWgt</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>loading completed !</source>
        <translation>加载完成！</translation>
    </message>
</context>
<context>
    <name>CRkProjectManagerView</name>
    <message>
        <source>Projects</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>to</source>
        <translation>至</translation>
    </message>
    <message>
        <source>city</source>
        <translation>城市</translation>
    </message>
    <message>
        <source>all</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>新建项目</translation>
    </message>
</context>
<context>
    <name>RkCityCategory</name>
    <message>
        <source>N/A</source>
        <translation>无</translation>
    </message>
</context>
</TS>
