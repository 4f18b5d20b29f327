<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>BlockPanel</name>
    <message>
        <source>Nothing opened yet</source>
        <translation>尚未打开测区</translation>
    </message>
    <message>
        <source>Choose a project and one of its blocks to see it on the map.</source>
        <translation>请选择项目及其测区，在地图上查看。</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>PROJECT</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>BLOCK</source>
        <translation>测区</translation>
    </message>
    <message>
        <source>TASKS AND FLIGHTS</source>
        <translation>任务与架次</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>比例尺</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>中心点</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Software version</source>
        <translation>软件版本</translation>
    </message>
    <message>
        <source>Aircraft</source>
        <translation>飞机类型</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机类型</translation>
    </message>
    <message>
        <source>Tasks and flights</source>
        <translation>任务与架次</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>架次</translation>
    </message>
    <message>
        <source>Tasks: %1, flights: %2</source>
        <translation>任务：%1，架次：%2</translation>
    </message>
    <message>
        <source>Apply for no-fly lift</source>
        <translation>申请禁飞区解禁</translation>
    </message>
    <message>
        <source>Apply to fly the block inside a no-fly zone</source>
        <translation>为位于禁飞区内的测区申请解禁飞行</translation>
    </message>
    <message>
        <source>Upload project</source>
        <translation>上传项目</translation>
    </message>
    <message>
        <source>Look at the whole project and send it to the web service</source>
        <translation>查看项目全部内容并上传到服务端</translation>
    </message>
</context>
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
    <message>
        <source>Wang Lin</source>
        <translation>王琳</translation>
    </message>
    <message>
        <source>Eastern River Survey Institute</source>
        <translation>东江测绘院</translation>
    </message>
    <message>
        <source>Survey of the embankment after the flood. Flights by daylight only, below 120 m above the ground, in agreement with the tower.</source>
        <translation>汛后堤防测绘。仅在昼间飞行，真高 120 米以下，并与塔台保持协调。</translation>
    </message>
</context>
<context>
    <name>HostWindow</name>
    <message>
        <source>Vantrell</source>
        <translation>Vantrell</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>项目管理</translation>
    </message>
    <message>
        <source>Open a project and one of its blocks (%1)</source>
        <translation>打开项目及其测区（%1）</translation>
    </message>
    <message>
        <source>Current user</source>
        <translation>当前用户</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Language: %1</source>
        <translation>语言：%1</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>The map with the blocks of the project (%1)</source>
        <translation>显示项目测区的地图 (%1)</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>地形</translation>
    </message>
    <message>
        <source>The terrain from above, for measuring earthwork (%1)</source>
        <translation>地形俯视图，用于计算土方量 (%1)</translation>
    </message>
    <message>
        <source>3-D view</source>
        <translation>三维视图</translation>
    </message>
    <message>
        <source>The terrain in three dimensions, under a light (%1)</source>
        <translation>光照下的三维地形 (%1)</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统信息</translation>
    </message>
    <message>
        <source>Processor, disks, display, memory and operating system of this computer (%1)</source>
        <translation>本机的处理器、硬盘、显卡、内存和操作系统 (%1)</translation>
    </message>
    <message>
        <source>Survey tools</source>
        <translation>测量工具</translation>
    </message>
    <message>
        <source>Earthwork</source>
        <translation>土方量计算</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>光照</translation>
    </message>
    <message>
        <source>Antenna height</source>
        <translation>天线高</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>坐标转换</translation>
    </message>
</context>
<context>
    <name>LightPanel</name>
    <message>
        <source>3-D view</source>
        <translation>三维视图</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>光照</translation>
    </message>
    <message>
        <source>Set the light of the 3-D view</source>
        <translation>设置三维视图的光照参数</translation>
    </message>
    <message>
        <source>Drag to turn, wheel to zoom. Heights × %1</source>
        <translation>拖动旋转，滚轮缩放；高程放大 %1 倍</translation>
    </message>
    <message>
        <source>There is no OpenGL on this machine, so the terrain is drawn plainly.</source>
        <translation>本机不支持 OpenGL，地形以简化方式绘制。</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Show the block</source>
        <translation>显示测区</translation>
    </message>
    <message>
        <source>Show all blocks of the project</source>
        <translation>显示项目全部测区</translation>
    </message>
    <message>
        <source>Show the whole country</source>
        <translation>显示全国</translation>
    </message>
    <message>
        <source>Show where I am</source>
        <translation>定位到我的位置</translation>
    </message>
    <message>
        <source>Draw an outline</source>
        <translation>绘制范围线</translation>
    </message>
</context>
<context>
    <name>MapPanel</name>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
</context>
<context>
    <name>MapPlaces</name>
    <message>
        <source>You are here</source>
        <translation>当前位置</translation>
    </message>
</context>
<context>
    <name>OutlinePlate</name>
    <message>
        <source>Vertices: %1</source>
        <translation>顶点数：%1</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>范围线</translation>
    </message>
    <message>
        <source>Remove the outline (Esc)</source>
        <translation>清除范围线（Esc）</translation>
    </message>
    <message>
        <source>Remove the outline</source>
        <translation>清除范围线</translation>
    </message>
    <message>
        <source>Largest part</source>
        <translation>分区面积上限</translation>
    </message>
    <message>
        <source>Largest part, square kilometres</source>
        <translation>分区面积上限，平方千米</translation>
    </message>
    <message>
        <source>Check outline</source>
        <translation>检查范围线</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>分割</translation>
    </message>
</context>
<context>
    <name>OutlineTexts</name>
    <message>
        <source>Crosses itself</source>
        <translation>自相交</translation>
    </message>
    <message>
        <source>Perimeter %1</source>
        <translation>周长 %1</translation>
    </message>
    <message>
        <source>Convex</source>
        <translation>凸多边形</translation>
    </message>
    <message>
        <source>Not convex</source>
        <translation>凹多边形</translation>
    </message>
    <message>
        <source>Does not cross itself</source>
        <translation>无自相交</translation>
    </message>
    <message>
        <source>Area %1, perimeter %2</source>
        <translation>面积 %1，周长 %2</translation>
    </message>
    <message>
        <source>Can be split into parts up to %1</source>
        <translation>可按不超过 %1 分割</translation>
    </message>
    <message>
        <source>Cannot be split while it crosses itself</source>
        <translation>自相交，无法分割</translation>
    </message>
    <message>
        <source>Need not be split: no larger than one part of %1</source>
        <translation>无需分割：面积未超过 %1</translation>
    </message>
    <message>
        <source>Cannot be split: edges lie on one another</source>
        <translation>边线重叠，无法分割</translation>
    </message>
    <message>
        <source>Cannot be split into parts as small as that</source>
        <translation>分区面积上限过小，无法分割</translation>
    </message>
    <message>
        <source>%1 parts, the largest %2</source>
        <translation>已分割为 %1 个分区，最大 %2</translation>
    </message>
</context>
<context>
    <name>OutlineTool</name>
    <message>
        <source>The outline is closed. Check it, or split it into parts.</source>
        <translation>范围线已闭合，可进行检查或分割。</translation>
    </message>
    <message>
        <source>Click on the map to add a vertex; Backspace takes it back.</source>
        <translation>单击地图添加顶点，按退格键撤销。</translation>
    </message>
    <message>
        <source>A double click or Enter closes the outline, Esc removes it.</source>
        <translation>双击或按回车键闭合，按 Esc 键清除。</translation>
    </message>
    <message>
        <source>An outline needs at least three vertices.</source>
        <translation>范围线至少需要三个顶点。</translation>
    </message>
    <message>
        <source>The outline lies too far north or south to be measured.</source>
        <translation>范围线纬度过高，无法量算。</translation>
    </message>
</context>
<context>
    <name>PlaceSearchBox</name>
    <message>
        <source>Searching…</source>
        <translation>正在搜索…</translation>
    </message>
    <message>
        <source>Finding your location…</source>
        <translation>正在定位…</translation>
    </message>
    <message>
        <source>No place found for &quot;%1&quot;</source>
        <translation>未找到与“%1”匹配的地点</translation>
    </message>
    <message>
        <source>The web service does not answer</source>
        <translation>网络服务无响应，无法搜索</translation>
    </message>
    <message>
        <source>Your location is not known: the web service does not answer</source>
        <translation>网络服务无响应，无法定位</translation>
    </message>
    <message>
        <source>Search for a place</source>
        <translation>搜索地点</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Places found</source>
        <translation>搜索结果</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
</context>
<context>
    <name>ProjectUploads</name>
    <message>
        <source>Upload: project %1 has been uploaded.</source>
        <translation>上传：项目“%1”已上传。</translation>
    </message>
    <message>
        <source>Upload: project %1 was cancelled.</source>
        <translation>上传：项目“%1”的上传已取消。</translation>
    </message>
    <message>
        <source>Upload: project %1 failed.</source>
        <translation>上传：项目“%1”上传失败。</translation>
    </message>
    <message>
        <source>No-fly lift: the application for %1 has been submitted.</source>
        <translation>禁飞区解禁：测区“%1”的申请已提交。</translation>
    </message>
    <message>
        <source>No-fly lift: the service has not confirmed the application for %1.</source>
        <translation>禁飞区解禁：测区“%1”的申请未得到服务端确认。</translation>
    </message>
</context>
<context>
    <name>SurveyTools</name>
    <message>
        <source>Vertical height: %1 m</source>
        <translation>天线垂高：%1 m</translation>
    </message>
    <message>
        <source>Coordinates: %1</source>
        <translation>坐标：%1</translation>
    </message>
</context>
<context>
    <name>SystemPage</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统信息</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>复制为文本</translation>
    </message>
    <message>
        <source>Asking the system…</source>
        <translation>正在读取系统信息…</translation>
    </message>
    <message>
        <source>Copied to the clipboard.</source>
        <translation>已复制到剪贴板。</translation>
    </message>
    <message>
        <source>About this computer, for questions to support.</source>
        <translation>本机的软硬件信息，可在咨询技术支持时提供。</translation>
    </message>
    <message>
        <source>PROCESSOR</source>
        <translation>处理器</translation>
    </message>
    <message>
        <source>STORAGE</source>
        <translation>存储</translation>
    </message>
    <message>
        <source>DISPLAY</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>MEMORY</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>OPERATING SYSTEM</source>
        <translation>操作系统</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>Logical processors</source>
        <translation>逻辑处理器数</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>主频</translation>
    </message>
    <message>
        <source>Disks</source>
        <translation>硬盘</translation>
    </message>
    <message>
        <source>Storage devices of all kinds</source>
        <translation>各类存储设备数</translation>
    </message>
    <message>
        <source>Display adapters</source>
        <translation>显卡</translation>
    </message>
    <message>
        <source>Number of adapters</source>
        <translation>显卡数量</translation>
    </message>
    <message>
        <source>Graphics memory</source>
        <translation>显存</translation>
    </message>
    <message>
        <source>Physical memory</source>
        <translation>物理内存</translation>
    </message>
    <message>
        <source>Address space</source>
        <translation>虚拟地址空间</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>%1 MHz</source>
        <translation>%1 MHz</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
</context>
<context>
    <name>TerrainLegend</name>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>高程</translation>
    </message>
    <message>
        <source>Fill and cut of a cell, m³</source>
        <translation>方格填挖方量，m³</translation>
    </message>
</context>
<context>
    <name>TerrainPanel</name>
    <message>
        <source>Terrain</source>
        <translation>地形</translation>
    </message>
    <message>
        <source>Earthwork</source>
        <translation>土方量计算</translation>
    </message>
    <message>
        <source>Measure cut and fill over a grid of squares</source>
        <translation>用方格网法测量挖填方量</translation>
    </message>
    <message>
        <source>Move the grid with the mouse or the arrow keys. Hold Alt to turn it.</source>
        <translation>用鼠标或方向键移动方格网，按住 Alt 键可旋转。</translation>
    </message>
    <message>
        <source>Such cells are too large for the terrain.</source>
        <translation>方格边长过大，超出地形范围。</translation>
    </message>
    <message>
        <source>Generate a grid first.</source>
        <translation>请先生成方格网。</translation>
    </message>
    <message>
        <source>%1: cut %2, fill %3 m³</source>
        <translation>%1：挖方 %2，填方 %3 m³</translation>
    </message>
    <message>
        <source>E %1  N %2  H %3 m</source>
        <translation>E %1  N %2  H %3 m</translation>
    </message>
</context>
<context>
    <name>UploadDialog</name>
    <message>
        <source>Upload project</source>
        <translation>上传项目</translation>
    </message>
    <message>
        <source>What is uploaded</source>
        <translation>上传内容</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>上传进度</translation>
    </message>
    <message>
        <source>Uploading …</source>
        <translation>正在上传……</translation>
    </message>
    <message>
        <source>Sent. Waiting for the answer of the service …</source>
        <translation>已发送，正在等待服务端应答……</translation>
    </message>
    <message>
        <source>Uploading … %1 of %2</source>
        <translation>正在上传…… %1，共 %2</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>上传</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Nothing can be read of this project.</source>
        <translation>无法读取该项目的内容。</translation>
    </message>
    <message>
        <source>Goes to %1</source>
        <translation>上传至 %1</translation>
    </message>
    <message>
        <source>The project has been uploaded.</source>
        <translation>项目已上传。</translation>
    </message>
    <message>
        <source>The upload failed: the service cannot be reached or did not take the project.</source>
        <translation>上传失败：无法连接服务端，或服务端未接收该项目。</translation>
    </message>
    <message>
        <source>The upload failed: the service does not know the current user.</source>
        <translation>上传失败：服务端无法识别当前用户。</translation>
    </message>
</context>
<context>
    <name>UploadNames</name>
    <message>
        <source>Project name</source>
        <translation>项目名称</translation>
    </message>
    <message>
        <source>Block name</source>
        <translation>测区名称</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>任务名称</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Latitude (°)</source>
        <translation>纬度（°）</translation>
    </message>
    <message>
        <source>Longitude (°)</source>
        <translation>经度（°）</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>修改时间</translation>
    </message>
    <message>
        <source>Map scale 1 :</source>
        <translation>成图比例尺 1 :</translation>
    </message>
    <message>
        <source>Latitude of the centre (°)</source>
        <translation>中心点纬度（°）</translation>
    </message>
    <message>
        <source>Longitude of the centre (°)</source>
        <translation>中心点经度（°）</translation>
    </message>
    <message>
        <source>Software version</source>
        <translation>软件版本</translation>
    </message>
    <message>
        <source>File version</source>
        <translation>文件版本</translation>
    </message>
    <message>
        <source>Aircraft</source>
        <translation>飞机类型</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机类型</translation>
    </message>
    <message>
        <source>Kind of block</source>
        <translation>测区类型</translation>
    </message>
    <message>
        <source>Kind of task</source>
        <translation>任务类型</translation>
    </message>
    <message>
        <source>Outline (lat,lng)</source>
        <translation>测区边界（纬度,经度）</translation>
    </message>
    <message>
        <source>Flight height above ground (m)</source>
        <translation>相对航高（m）</translation>
    </message>
    <message>
        <source>Airspeed (m/s)</source>
        <translation>空速（m/s）</translation>
    </message>
    <message>
        <source>Direction of flight lines (°)</source>
        <translation>航线角度（°）</translation>
    </message>
    <message>
        <source>Strip width to the left (m)</source>
        <translation>左侧带宽（m）</translation>
    </message>
    <message>
        <source>Strip width to the right (m)</source>
        <translation>右侧带宽（m）</translation>
    </message>
    <message>
        <source>Routes there and back</source>
        <translation>往返航线</translation>
    </message>
    <message>
        <source>Expected routes</source>
        <translation>期望航线数</translation>
    </message>
    <message>
        <source>Expected missions</source>
        <translation>期望架次数</translation>
    </message>
    <message>
        <source>With transfer points</source>
        <translation>包含转场点</translation>
    </message>
    <message>
        <source>With frame routes</source>
        <translation>生成构架航线</translation>
    </message>
    <message>
        <source>Photographs beyond the block</source>
        <translation>航向外扩像片数</translation>
    </message>
    <message>
        <source>Routes beyond the block</source>
        <translation>旁向外扩航线数</translation>
    </message>
    <message>
        <source>Routes joined</source>
        <translation>连接航线</translation>
    </message>
    <message>
        <source>Flight direction</source>
        <translation>飞行方向</translation>
    </message>
    <message>
        <source>Distance of one task (km)</source>
        <translation>单任务里程（km）</translation>
    </message>
    <message>
        <source>Margin around the block (m)</source>
        <translation>环绕外扩距离（m）</translation>
    </message>
    <message>
        <source>Tilt mode</source>
        <translation>倾斜俯仰模式</translation>
    </message>
    <message>
        <source>Tilt of the camera (°)</source>
        <translation>倾斜俯仰角（°）</translation>
    </message>
    <message>
        <source>Height mode of the routes</source>
        <translation>航线高度模式</translation>
    </message>
    <message>
        <source>Camera orientation</source>
        <translation>相机朝向</translation>
    </message>
    <message>
        <source>Trigger mode</source>
        <translation>曝光模式</translation>
    </message>
    <message>
        <source>Outermost route to edge (m)</source>
        <translation>最外航线距边界（m）</translation>
    </message>
    <message>
        <source>Terrain mode</source>
        <translation>仿地模式</translation>
    </message>
    <message>
        <source>Lowest route height (m)</source>
        <translation>航线最低高度（m）</translation>
    </message>
    <message>
        <source>Object height (m)</source>
        <translation>目标物高度（m）</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>缩略图</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Block id</source>
        <translation>测区编号</translation>
    </message>
    <message>
        <source>Task id</source>
        <translation>任务编号</translation>
    </message>
    <message>
        <source>Id of the project</source>
        <translation>所属项目编号</translation>
    </message>
    <message>
        <source>Id of the block</source>
        <translation>所属测区编号</translation>
    </message>
    <message>
        <source>Blocks</source>
        <translation>测区</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>Marker points</source>
        <translation>标志点</translation>
    </message>
    <message>
        <source>Tasks: %1</source>
        <translation>任务：%1</translation>
    </message>
    <message>
        <source>Block %1</source>
        <translation>测区 %1</translation>
    </message>
    <message>
        <source>Task %1</source>
        <translation>任务 %1</translation>
    </message>
    <message>
        <source>Point %1</source>
        <translation>标志点 %1</translation>
    </message>
    <message>
        <source>%1… (%2 characters)</source>
        <translation>%1……（共 %2 个字符）</translation>
    </message>
    <message>
        <source>Blocks: %1, tasks: %2, marker points: %3. Size: %4.</source>
        <translation>测区：%1，任务：%2，标志点：%3。大小：%4。</translation>
    </message>
</context>
<context>
    <name>UploadTreeModel</name>
    <message>
        <source>Entry</source>
        <translation>项</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>UserBox</name>
    <message>
        <source>Lin Yue</source>
        <translation>林悦</translation>
    </message>
    <message>
        <source>Chen Bo</source>
        <translation>陈波</translation>
    </message>
    <message>
        <source>Zhao Min</source>
        <translation>赵敏</translation>
    </message>
    <message>
        <source>Wang Jia</source>
        <translation>王佳</translation>
    </message>
    <message>
        <source>Huang Rui</source>
        <translation>黄睿</translation>
    </message>
    <message>
        <source>Sun Tao</source>
        <translation>孙涛</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Current user</source>
        <translation>当前用户</translation>
    </message>
    <message>
        <source>Whose projects are shown. Choose a user or type an id.</source>
        <translation>显示该用户的项目，可选择用户或输入用户编号。</translation>
    </message>
</context>
<context>
    <name>ViewButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Show the whole terrain</source>
        <translation>显示全部地形</translation>
    </message>
</context>
</TS>
