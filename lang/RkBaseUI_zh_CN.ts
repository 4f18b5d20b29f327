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
    <name>CRkBlockManagerTable</name>
    <message>
        <source>CRkBlockManagerTable</source>
        <translation>CRkBlockManagerTable</translation>
    </message>
    <message>
        <source>Block Name</source>
        <translation>测区名称</translation>
    </message>
    <message>
        <source>Airplane Type</source>
        <translation>飞机类型</translation>
    </message>
    <message>
        <source>Camera Type</source>
        <translation>相机类型</translation>
    </message>
    <message>
        <source>Task Count</source>
        <translation>任务数</translation>
    </message>
    <message>
        <source>Flight Count</source>
        <translation>架次数</translation>
    </message>
    <message>
        <source>Blocks</source>
        <translation>测区</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>CRkBlockManagerWidget</name>
    <message>
        <source>CRkBlockManagerWidget</source>
        <translation>CRkBlockManagerWidget</translation>
    </message>
    <message>
        <source>Back to the projects</source>
        <translation>返回项目列表</translation>
    </message>
    <message>
        <source>Part of a block name</source>
        <translation>测区名称的一部分</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Size : </source>
        <translation>大小：</translation>
    </message>
    <message>
        <source>Modified Time : </source>
        <translation>修改时间：</translation>
    </message>
    <message>
        <source>Block ount:</source>
        <translation>测区数：</translation>
    </message>
    <message>
        <source>Task count:</source>
        <translation>任务数：</translation>
    </message>
    <message>
        <source>Flight count:</source>
        <translation>架次数：</translation>
    </message>
</context>
<context>
    <name>CRkCityDateFilterWidget</name>
    <message>
        <source>City</source>
        <translation>城市</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Choose a city</source>
        <translation>选择城市</translation>
    </message>
    <message>
        <source>Choose a date</source>
        <translation>选择日期</translation>
    </message>
</context>
<context>
    <name>CRkCitySelectWidget</name>
    <message>
        <source>RkCitySelectWidget</source>
        <translation>选择城市</translation>
    </message>
    <message>
        <source>By Province</source>
        <translation>按省份</translation>
    </message>
    <message>
        <source>By City</source>
        <translation>按城市</translation>
    </message>
    <message>
        <source>Part of a place name</source>
        <translation>地名的一部分</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>current city:</source>
        <translation>当前城市：</translation>
    </message>
    <message>
        <source>Set default city</source>
        <translation>设为默认城市</translation>
    </message>
    <message>
        <source>Province</source>
        <translation>省份</translation>
    </message>
    <message>
        <source>City</source>
        <translation>城市</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>input the city name</source>
        <translation>请输入城市名称</translation>
    </message>
    <message>
        <source>Enter the province name</source>
        <translation>请输入省份名称</translation>
    </message>
    <message>
        <source>Enter a city name</source>
        <translation>请输入城市名称</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Beijing</source>
        <translation>北京</translation>
    </message>
    <message>
        <source>Shanghai</source>
        <translation>上海</translation>
    </message>
    <message>
        <source>Guangzhou</source>
        <translation>广州</translation>
    </message>
    <message>
        <source>Shenzhen</source>
        <translation>深圳</translation>
    </message>
    <message>
        <source>Chengdu</source>
        <translation>成都</translation>
    </message>
    <message>
        <source>Tianjin</source>
        <translation>天津</translation>
    </message>
    <message>
        <source>Nanjing</source>
        <translation>南京</translation>
    </message>
    <message>
        <source>Hangzhou</source>
        <translation>杭州</translation>
    </message>
    <message>
        <source>Wuhan</source>
        <translation>武汉</translation>
    </message>
    <message>
        <source>Chongqing</source>
        <translation>重庆</translation>
    </message>
</context>
<context>
    <name>CRkCoordFormat</name>
    <message>
        <source>Dec</source>
        <translation>十进制度</translation>
    </message>
    <message>
        <source>DMS</source>
        <translation>度分秒</translation>
    </message>
    <message>
        <source>Latitude:</source>
        <translation>纬度：</translation>
    </message>
    <message>
        <source>Longitude:</source>
        <translation>经度：</translation>
    </message>
    <message>
        <source>Coordinate Format</source>
        <translation>坐标格式</translation>
    </message>
    <message>
        <source>dd.mmssss</source>
        <translation>dd.mmssss</translation>
    </message>
    <message>
        <source>ddd.mmssss</source>
        <translation>ddd.mmssss</translation>
    </message>
    <message>
        <source>Please input parameter.</source>
        <translation>请输入纬度和经度。</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>纬度或经度超出范围。</translation>
    </message>
</context>
<context>
    <name>CRkDateSelectWidget</name>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>最近一周</translation>
    </message>
    <message>
        <source>Two weeks ago</source>
        <translation>最近两周</translation>
    </message>
    <message>
        <source>Three weeks ago</source>
        <translation>最近三周</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>最近一个月</translation>
    </message>
    <message>
        <source>Time period</source>
        <translation>时间段</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>起始日期</translation>
    </message>
    <message>
        <source>To</source>
        <translation>至</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>截止日期</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>日历</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
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
    <name>CRkLightWgt</name>
    <message>
        <source>Light Dir</source>
        <translation>光照方向</translation>
    </message>
    <message>
        <source>Light direction</source>
        <translation>光照方向</translation>
    </message>
    <message>
        <source>Azimuth:</source>
        <translation>方位角：</translation>
    </message>
    <message>
        <source>Elevation:</source>
        <translation>高度角：</translation>
    </message>
    <message>
        <source>ambient uKa:</source>
        <translation>环境光系数 uKa：</translation>
    </message>
    <message>
        <source>diffuse uKd:</source>
        <translation>漫反射系数 uKd：</translation>
    </message>
    <message>
        <source>specular uKs:</source>
        <translation>镜面反射系数 uKs：</translation>
    </message>
    <message>
        <source>light color:</source>
        <translation>光源颜色：</translation>
    </message>
    <message>
        <source>Light color</source>
        <translation>光源颜色</translation>
    </message>
    <message>
        <source>specular color:</source>
        <translation>镜面光颜色：</translation>
    </message>
    <message>
        <source>Specular color</source>
        <translation>镜面光颜色</translation>
    </message>
    <message>
        <source>shininess:</source>
        <translation>高光指数：</translation>
    </message>
    <message>
        <source>blend:</source>
        <translation>混合系数：</translation>
    </message>
    <message>
        <source>Light Parameter</source>
        <translation>光照参数</translation>
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
    <name>CRkNoflyApplyUpload</name>
    <message>
        <source>UpLoad Apply File</source>
        <translation>上传申请文件</translation>
    </message>
    <message>
        <source>UpLoading ......</source>
        <translation>正在上传……</translation>
    </message>
    <message>
        <source>UpLoad File Finished.</source>
        <translation>文件上传完成。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>UpLoad File Failed.</source>
        <translation>文件上传失败。</translation>
    </message>
    <message>
        <source>No Login!</source>
        <translation>尚未登录！</translation>
    </message>
    <message>
        <source>Retry...</source>
        <translation>正在重试……</translation>
    </message>
</context>
<context>
    <name>CRkNoflyApplyWgt</name>
    <message>
        <source>Authorization document:</source>
        <translation>空域批文：</translation>
    </message>
    <message>
        <source>Choose the authorization document</source>
        <translation>选择空域批文</translation>
    </message>
    <message>
        <source>Authorization Name:</source>
        <translation>申请人：</translation>
    </message>
    <message>
        <source>Contact mobile phone:</source>
        <translation>联系手机：</translation>
    </message>
    <message>
        <source>Company:</source>
        <translation>申请单位：</translation>
    </message>
    <message>
        <source>Start time:</source>
        <translation>开始时间：</translation>
    </message>
    <message>
        <source>End time:</source>
        <translation>结束时间：</translation>
    </message>
    <message>
        <source>Screen shots：</source>
        <translation>测区截图：</translation>
    </message>
    <message>
        <source>Screen shot of the map</source>
        <translation>地图截图</translation>
    </message>
    <message>
        <source>Area coordinate:</source>
        <translation>测区坐标：</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>经度</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>纬度</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Apply for 
instructions:</source>
        <translation>申请
说明：</translation>
    </message>
    <message>
        <source>Application Information</source>
        <translation>禁飞区解禁申请</translation>
    </message>
    <message>
        <source>Please select the application document.</source>
        <translation>请选择空域批文。</translation>
    </message>
    <message>
        <source>Please input the Authorization Name.</source>
        <translation>请输入申请人姓名。</translation>
    </message>
    <message>
        <source>Please input the invalid date time.</source>
        <translation>请输入有效的起止时间。</translation>
    </message>
    <message>
        <source>Apply file</source>
        <translation>选择申请文件</translation>
    </message>
    <message>
        <source>doc file(*.doc *.docx);;pdf file(*.pdf);;image file(*.jpg *.png *.bmp *.jpeg)</source>
        <translation>Word 文档(*.doc *.docx);;PDF 文件(*.pdf);;图片(*.jpg *.png *.bmp *.jpeg)</translation>
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
    <name>CRkProjectManagerDialog</name>
    <message>
        <source>Open Project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>徽标</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
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
    <message>
        <source>Copy Project</source>
        <translation>复制项目</translation>
    </message>
    <message>
        <source>Please select a project to copy.</source>
        <translation>请选择要复制的项目。</translation>
    </message>
    <message>
        <source>copy of </source>
        <translation>副本 </translation>
    </message>
    <message>
        <source>Delete Project</source>
        <translation>删除项目</translation>
    </message>
    <message>
        <source>Please select a project to delete.</source>
        <translation>请选择要删除的项目。</translation>
    </message>
    <message>
        <source>confirm delete &quot;</source>
        <translation>确认删除“</translation>
    </message>
    <message>
        <source>&quot;?</source>
        <translation>”？</translation>
    </message>
    <message>
        <source>File In Use</source>
        <translation>文件正在使用</translation>
    </message>
    <message>
        <source>The action can&apos;t be completed because the file is open in other application.Close the file and try again.</source>
        <translation>操作无法完成，因为文件已在其他程序中打开。请关闭文件后重试。</translation>
    </message>
    <message>
        <source>Rename Project</source>
        <translation>重命名项目</translation>
    </message>
    <message>
        <source>You must type a project name.</source>
        <translation>必须输入项目名称。</translation>
    </message>
    <message>
        <source>The action can&apos;t be completed because the file is open in other application or project name has been exist.</source>
        <translation>操作无法完成，因为文件已在其他程序中打开，或项目名称已存在。</translation>
    </message>
</context>
<context>
    <name>CRkProjectManagerWidget</name>
    <message>
        <source>CRkProjectManagerWidget</source>
        <translation>CRkProjectManagerWidget</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>新建项目</translation>
    </message>
    <message>
        <source>Copy the project</source>
        <translation>复制项目</translation>
    </message>
    <message>
        <source>Delete the project</source>
        <translation>删除项目</translation>
    </message>
    <message>
        <source>Part of a project name</source>
        <translation>项目名称的一部分</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
</context>
<context>
    <name>CRkVerHighCalculator</name>
    <message>
        <source>Antenna on a tripod above the mark, with the lengths L, G and P and the vertical height H</source>
        <translation>三脚架上的天线与地面标志，标注长度 L、G、P 和垂高 H</translation>
    </message>
    <message>
        <source>Vertical offset P, in metres</source>
        <translation>垂直改正量 P（米）</translation>
    </message>
    <message>
        <source>Vertical offset G, in metres</source>
        <translation>垂直改正量 G（米）</translation>
    </message>
    <message>
        <source>Slant height L from the mark to the edge of the antenna, in metres</source>
        <translation>斜高 L：地面标志中心至天线边缘（米）</translation>
    </message>
    <message>
        <source>Vertical Hight Calculator</source>
        <translation>天线垂高计算</translation>
    </message>
    <message>
        <source>Please input all base station parameter.</source>
        <translation>请输入基站的全部参数。</translation>
    </message>
    <message>
        <source>Invalid value, please check base station parameter.</source>
        <translation>数值无效，请检查基站参数。</translation>
    </message>
</context>
<context>
    <name>CRkVolumeWgt</name>
    <message>
        <source>Earthwork measurement</source>
        <translation>土方量计算</translation>
    </message>
    <message>
        <source>Average Plane</source>
        <translation>平均高程面</translation>
    </message>
    <message>
        <source>Minimum Plane</source>
        <translation>最低高程面</translation>
    </message>
    <message>
        <source>Custom </source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>点号</translation>
    </message>
    <message>
        <source>Terrain Elevation</source>
        <translation>地面标高</translation>
    </message>
    <message>
        <source>Leveling Elevation</source>
        <translation>平整标高</translation>
    </message>
    <message>
        <source>Design Elevation</source>
        <translation>设计标高</translation>
    </message>
    <message>
        <source>Construction Elevation</source>
        <translation>施工高度</translation>
    </message>
    <message>
        <source>Area:</source>
        <translation>面积：</translation>
    </message>
    <message>
        <source>Excavation:</source>
        <translation>挖方：</translation>
    </message>
    <message>
        <source>Fill:</source>
        <translation>填方：</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>方格网</translation>
    </message>
    <message>
        <source>Grid length:</source>
        <translation>方格边长：</translation>
    </message>
    <message>
        <source>Generate</source>
        <translation>生成</translation>
    </message>
    <message>
        <source>Ensure</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Drag and drop the removable mesh in the test area,
 and press the ALT button to drag and rotate the mesh !</source>
        <translation>请将可移动的方格网拖放到测区内，
按住 ALT 键拖动可旋转方格网！</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>设计面</translation>
    </message>
    <message>
        <source>Elevation design:</source>
        <translation>设计标高：</translation>
    </message>
    <message>
        <source>Elevations of the points</source>
        <translation>各点标高</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>计算</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Area, excavation and fill appear here.</source>
        <translation>面积、挖方量和填方量显示在此处。</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>计算结果</translation>
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
