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
    <message>
        <source>%1 of %2 files</source>
        <translation>第 %1 个文件，共 %2 个</translation>
    </message>
    <message>
        <source>A project of this name is already there.</source>
        <translation>同名项目已存在。</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>面</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Beijing</source>
        <translation>北京</translation>
    </message>
    <message>
        <source>Chengdu</source>
        <translation>成都</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>圆</translation>
    </message>
    <message>
        <source>Discard the changes to &quot;%1&quot;?</source>
        <translation>放弃对“%1”的更改？</translation>
    </message>
    <message>
        <source>Edit Parameters</source>
        <translation>编辑参数</translation>
    </message>
    <message>
        <source>Embankment of the eastern river arm between the second and the third lock, before and after the flood of last summer</source>
        <translation>第二座与第三座船闸之间东侧河道的堤防，去年夏季洪水前后</translation>
    </message>
    <message>
        <source>Harbin</source>
        <translation>哈尔滨</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Hohhot</source>
        <translation>呼和浩特</translation>
    </message>
    <message>
        <source>Kunming</source>
        <translation>昆明</translation>
    </message>
    <message>
        <source>Lhasa</source>
        <translation>拉萨</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>More about it in the &lt;a href=&quot;https://example.org&quot;&gt;manual&lt;/a&gt;.</source>
        <translation>详情请参阅&lt;a href=&quot;https://example.org&quot;&gt;手册&lt;/a&gt;。</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Reading blocks</source>
        <translation>正在读取测区</translation>
    </message>
    <message>
        <source>Sanya</source>
        <translation>三亚</translation>
    </message>
    <message>
        <source>Shanghai</source>
        <translation>上海</translation>
    </message>
    <message>
        <source>Survey Host</source>
        <translation>测量主程序</translation>
    </message>
    <message>
        <source>The project is saved.</source>
        <translation>项目已保存。</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>服务器没有响应。</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>上传</translation>
    </message>
    <message>
        <source>Urumqi</source>
        <translation>乌鲁木齐</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>正在等待服务器</translation>
    </message>
    <message>
        <source>Writing the last file</source>
        <translation>正在写入最后一个文件</translation>
    </message>
    <message>
        <source>Xiamen</source>
        <translation>厦门</translation>
    </message>
    <message>
        <source>a tool picked</source>
        <translation>已选工具</translation>
    </message>
    <message>
        <source>checked</source>
        <translation>已选中</translation>
    </message>
    <message>
        <source>count</source>
        <translation>计数</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>dot</source>
        <translation>圆点</translation>
    </message>
    <message>
        <source>highlighted</source>
        <translation>高亮</translation>
    </message>
    <message>
        <source>hovered</source>
        <translation>悬停</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>加载中</translation>
    </message>
    <message>
        <source>loading, at the start</source>
        <translation>加载中，起始</translation>
    </message>
    <message>
        <source>loading, disabled</source>
        <translation>加载中，已禁用</translation>
    </message>
    <message>
        <source>normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>not loading</source>
        <translation>未加载</translation>
    </message>
    <message>
        <source>pressed</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>with tools</source>
        <translation>有工具</translation>
    </message>
    <message>
        <source>without tip</source>
        <translation>无提示</translation>
    </message>
    <message>
        <source>without tools</source>
        <translation>无工具</translation>
    </message>
</context>
<context>
    <name>HostWindow</name>
    <message>
        <source>Vantrell</source>
        <translation>Vantrell</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
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
