<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>AdvancedSetup</name>
    <message>
        <source>常规</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>加粗</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>斜体</source>
        <translation>Italic</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>字体</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>字形</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>行起始数</source>
        <translation>First row</translation>
    </message>
    <message>
        <source>列起始数</source>
        <translation>First column</translation>
    </message>
    <message>
        <source>模块线宽</source>
        <translation>Module line</translation>
    </message>
    <message>
        <source>扫描版线宽</source>
        <translation>Board line</translation>
    </message>
</context>
<context>
    <name>CommonHelper</name>
    <message>
        <source>红</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>绿</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>蓝</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>白</source>
        <translation>White</translation>
    </message>
    <message>
        <source>黄</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>青</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>紫</source>
        <translation>Purple</translation>
    </message>
</context>
<context>
    <name>DisplaySign</name>
    <message>
        <source>屏幕的伽马曲线被更改（夜间模式或色彩校准）</source>
        <translation>The screen's gamma curve is altered (night light or calibration)</translation>
    </message>
    <message>
        <source>桌面缩放了画面，图案像素与屏幕像素不是一一对应</source>
        <translation>The desktop scales the picture: pattern pixels are not screen pixels</translation>
    </message>
    <message>
        <source>屏幕的每个颜色通道不足8位</source>
        <translation>The screen has fewer than 8 bits per colour channel</translation>
    </message>
    <message>
        <source>测试窗口有一部分不在任何屏幕上</source>
        <translation>A part of the test window lies on no screen</translation>
    </message>
</context>
<context>
    <name>DrawContainer</name>
    <message>
        <source>[Fn+←]:显示/隐藏窗口右下角处提示
[Fn+→]:显示/隐藏窗口中心处提示
[Fn+↑]:功能向上切换
[Fn+↓]:功能向下切换
[⇧+↑↓←→]:窗口大小
[⇧+F/双击]:全屏/取消全屏
[⌘+↑↓←→]:窗口位置
[↑↓←→]:灰度调节
[Fn+Enter/Delete]:自动增加/减少灰度
[⇧+H]:显示/隐藏窗口
</source>
        <translation>[Home | Fn+←]: show/hide this reminder
[End | Fn+→]: show/hide the hint at the centre
[PageUp | Fn+↑]: previous pattern
[PageDown | Fn+↓]: next pattern
[⇧+↑↓←→]: window size
[⇧+F | double click]: full screen on/off
[Ctrl | ⌘ +↑↓←→]: window position
[↑↓←→]: grey level
[Keypad Enter | Backspace]: grey up/down automatically
[⇧+H]: show/hide the window
</translation>
    </message>
    <message>
        <source> 隐藏</source>
        <translation> Hide</translation>
    </message>
    <message>
        <source>窗口信息：</source>
        <translation>Window:</translation>
    </message>
</context>
<context>
    <name>DrawCtrlForm</name>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>宽</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>隐藏</source>
        <translation>Hide</translation>
    </message>
    <message>
        <source>Wayland 下窗口位置由桌面决定</source>
        <translation>On Wayland the desktop chooses the place</translation>
    </message>
</context>
<context>
    <name>GradualChangeCtrlWidget</name>
    <message>
        <source>32级</source>
        <translation>32 levels</translation>
    </message>
    <message>
        <source>64级</source>
        <translation>64 levels</translation>
    </message>
    <message>
        <source>128级</source>
        <translation>128 levels</translation>
    </message>
    <message>
        <source>256级</source>
        <translation>256 levels</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>窗口</source>
        <translation>Window</translation>
    </message>
    <message>
        <source>纯色</source>
        <translation>Purity</translation>
    </message>
    <message>
        <source>渐变</source>
        <translation>Gradient</translation>
    </message>
    <message>
        <source>网格</source>
        <translation>Grid</translation>
    </message>
    <message>
        <source>定位</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>About</translation>
    </message>
    <message>
        <source>显示屏测试工具-Tarn</source>
        <translation>LED Screen Test Tool - Tarn</translation>
    </message>
</context>
<context>
    <name>MixSetting</name>
    <message>
        <source>蓝色</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>青色</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>绿色</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>横线</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>紫色</source>
        <translation>Purple</translation>
    </message>
    <message>
        <source>红色</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>左斜</source>
        <translation>Left /</translation>
    </message>
    <message>
        <source>右斜</source>
        <translation>Right \</translation>
    </message>
    <message>
        <source>竖线</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>白色</source>
        <translation>White</translation>
    </message>
    <message>
        <source>黄色</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>网格设置</source>
        <translation>Grid settings</translation>
    </message>
    <message>
        <source>背景色</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>线条宽度</source>
        <translation>Line width</translation>
    </message>
    <message>
        <source>线条间距</source>
        <translation>Line spacing</translation>
    </message>
    <message>
        <source>混测设置</source>
        <translation>Merged test settings</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>混测设置：请至少选中一项！</source>
        <translation>Merged test: select at least one item!</translation>
    </message>
</context>
<context>
    <name>RunIndicator</name>
    <message>
        <source>运行指示灯</source>
        <translation>Run lamp</translation>
    </message>
</context>
<context>
    <name>ScrAboutWidget</name>
    <message>
        <source>Tarn：LED显示屏专业解决方案</source>
        <translation>Tarn: professional solutions for LED display screens</translation>
    </message>
    <message>
        <source>1. LED显示屏控制系统</source>
        <translation>1. Control systems for LED display screens</translation>
    </message>
    <message>
        <source>2. LED显示屏测试与校正工具</source>
        <translation>2. Tools for testing and calibrating LED display screens</translation>
    </message>
    <message>
        <source>3. 视频处理与信号传输设备</source>
        <translation>3. Equipment for video processing and signal transmission</translation>
    </message>
    <message>
        <source>全国技术支持电话：+1 555-0142</source>
        <translation>Nationwide technical support, telephone: +1 555-0142</translation>
    </message>
</context>
<context>
    <name>ScrGridCtrlDialog</name>
    <message>
        <source>显示屏测试工具-网格</source>
        <translation>LED Screen Test Tool - Grid</translation>
    </message>
    <message>
        <source>速度</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Grey</translation>
    </message>
    <message>
        <source>网格叠加</source>
        <translation>Overlay</translation>
    </message>
    <message>
        <source>混测</source>
        <translation>Merged</translation>
    </message>
    <message>
        <source>老化</source>
        <translation>Aging</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>横</source>
        <translation>Horiz.</translation>
    </message>
    <message>
        <source>竖</source>
        <translation>Vert.</translation>
    </message>
    <message>
        <source>左斜</source>
        <translation>Left /</translation>
    </message>
    <message>
        <source>右斜</source>
        <translation>Right \</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pause</translation>
    </message>
</context>
<context>
    <name>ScrHelperCtrlWidget</name>
    <message>
        <source>[Home]</source>
        <translation>[Home]</translation>
    </message>
    <message>
        <source>显示/隐藏窗口右下角处提示</source>
        <translation>Show/hide the reminder at the window&apos;s lower right corner</translation>
    </message>
    <message>
        <source>[End]</source>
        <translation>[End]</translation>
    </message>
    <message>
        <source>显示/隐藏窗口中心处提示</source>
        <translation>Show/hide the hint at the window&apos;s centre</translation>
    </message>
    <message>
        <source>[PageUp]</source>
        <translation>[PageUp]</translation>
    </message>
    <message>
        <source>功能向上切换</source>
        <translation>Previous pattern</translation>
    </message>
    <message>
        <source>[PageDown]</source>
        <translation>[PageDown]</translation>
    </message>
    <message>
        <source>功能向下切换</source>
        <translation>Next pattern</translation>
    </message>
    <message>
        <source>[Shift+↑↓←→]</source>
        <translation>[Shift+↑↓←→]</translation>
    </message>
    <message>
        <source>窗口大小</source>
        <translation>Window size</translation>
    </message>
    <message>
        <source>[Shift+F/双击]</source>
        <translation>[Shift+F | double click]</translation>
    </message>
    <message>
        <source>全屏/取消全屏</source>
        <translation>Full screen on/off</translation>
    </message>
    <message>
        <source>[Ctrl+↑↓←→]</source>
        <translation>[Ctrl+↑↓←→]</translation>
    </message>
    <message>
        <source>窗口位置</source>
        <translation>Window position</translation>
    </message>
    <message>
        <source>[↑↓←→]</source>
        <translation>[↑↓←→]</translation>
    </message>
    <message>
        <source>灰度调节</source>
        <translation>Grey level</translation>
    </message>
    <message>
        <source>[Insert/Delete]</source>
        <translation>[Insert | Delete]</translation>
    </message>
    <message>
        <source>自动增加/减少灰度</source>
        <translation>Grey level up/down automatically</translation>
    </message>
    <message>
        <source>[Shift+H]</source>
        <translation>[Shift+H]</translation>
    </message>
    <message>
        <source>显示/隐藏窗口</source>
        <translation>Show/hide the window</translation>
    </message>
    <message>
        <source>提示：Mac使用本工具时，请把菜单栏设置隐藏掉</source>
        <translation>Tip: on a Mac, let the menu bar hide itself while you use this tool</translation>
    </message>
    <message>
        <source>[Fn+←]</source>
        <translation>[Home | Fn+←]</translation>
    </message>
    <message>
        <source>[Fn+→]</source>
        <translation>[End | Fn+→]</translation>
    </message>
    <message>
        <source>[Fn+↑]</source>
        <translation>[PageUp | Fn+↑]</translation>
    </message>
    <message>
        <source>[Fn+↓]</source>
        <translation>[PageDown | Fn+↓]</translation>
    </message>
    <message>
        <source>[⇧+↑↓←→]</source>
        <translation>[⇧+↑↓←→]</translation>
    </message>
    <message>
        <source>[⇧+F/双击]</source>
        <translation>[⇧+F | double click]</translation>
    </message>
    <message>
        <source>[⌘+↑↓←→]</source>
        <translation>[Ctrl | ⌘ +↑↓←→]</translation>
    </message>
    <message>
        <source>[Fn+Enter/Delete]</source>
        <translation>[Keypad Enter | Backspace]</translation>
    </message>
    <message>
        <source>[⇧+H]</source>
        <translation>[⇧+H]</translation>
    </message>
</context>
<context>
    <name>ScrPurityCtrlDialog</name>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>速度</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>当前灰度</source>
        <translation>Current grey</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>手动</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Grey</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pause</translation>
    </message>
</context>
<context>
    <name>TarnTool</name>
    <message>
        <source>模块宽度</source>
        <translation>Module width</translation>
    </message>
    <message>
        <source>模块高度</source>
        <translation>Module height</translation>
    </message>
    <message>
        <source>模块行数</source>
        <translation>Module rows</translation>
    </message>
    <message>
        <source>模块列数</source>
        <translation>Module columns</translation>
    </message>
    <message>
        <source>字体颜色</source>
        <translation>Number colour</translation>
    </message>
    <message>
        <source>模块线颜色</source>
        <translation>Module lines</translation>
    </message>
    <message>
        <source>扫描板颜色</source>
        <translation>Board lines</translation>
    </message>
    <message>
        <source>从左到右</source>
        <translation>Left to right</translation>
    </message>
    <message>
        <source>从右到左</source>
        <translation>Right to left</translation>
    </message>
    <message>
        <source>纯色背景</source>
        <translation>Solid colour</translation>
    </message>
    <message>
        <source>背景图</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>定位</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>选择背景图</source>
        <translation>Choose a background picture</translation>
    </message>
    <message>
        <source>图片文件 (*.jpg *.png *.bmp)</source>
        <translation>Pictures (*.jpg *.png *.bmp)</translation>
    </message>
</context>
<context>
    <name>UX::Widgets::FramelessDialog</name>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>UX::Widgets::TitleBar</name>
    <message>
        <source>最小化</source>
        <translation>Minimise</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximise</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
</context>
</TS>
