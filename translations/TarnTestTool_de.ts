<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="zh_CN">
<context>
    <name>AdvancedSetup</name>
    <message>
        <source>常规</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>加粗</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>斜体</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>字体</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>字形</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>行起始数</source>
        <translation>Erste Zeile</translation>
    </message>
    <message>
        <source>列起始数</source>
        <translation>Erste Spalte</translation>
    </message>
    <message>
        <source>模块线宽</source>
        <translation>Modullinie</translation>
    </message>
    <message>
        <source>扫描版线宽</source>
        <translation>Kartenlinie</translation>
    </message>
</context>
<context>
    <name>CommonHelper</name>
    <message>
        <source>红</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>绿</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>蓝</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>白</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>黄</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>青</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>紫</source>
        <translation>Magenta</translation>
    </message>
</context>
<context>
    <name>DisplaySign</name>
    <message>
        <source>屏幕的伽马曲线被更改（夜间模式或色彩校准）</source>
        <translation>Die Gammakurve des Bildschirms ist verändert (Nachtlicht oder Kalibrierung)</translation>
    </message>
    <message>
        <source>桌面缩放了画面，图案像素与屏幕像素不是一一对应</source>
        <translation>Der Desktop skaliert das Bild: Musterpixel sind keine Bildschirmpixel</translation>
    </message>
    <message>
        <source>屏幕的每个颜色通道不足8位</source>
        <translation>Der Bildschirm hat weniger als 8 Bit je Farbkanal</translation>
    </message>
    <message>
        <source>测试窗口有一部分不在任何屏幕上</source>
        <translation>Ein Teil des Testfensters liegt auf keinem Bildschirm</translation>
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
        <translation>[Pos1 | Fn+←]: diese Hilfe ein/aus
[Ende | Fn+→]: Hinweis in der Mitte ein/aus
[Bild↑ | Fn+↑]: voriges Testbild
[Bild↓ | Fn+↓]: nächstes Testbild
[⇧+↑↓←→]: Fenstergröße
[⇧+F | Doppelklick]: Vollbild ein/aus
[Strg | ⌘ +↑↓←→]: Fensterposition
[↑↓←→]: Graustufe
[Enter (Ziffernblock) | Rücktaste]: Graustufe automatisch +/−
[⇧+H]: Fenster ein/aus
</translation>
    </message>
    <message>
        <source> 隐藏</source>
        <translation> Ausblenden</translation>
    </message>
    <message>
        <source>窗口信息：</source>
        <translation>Fenster:</translation>
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
        <translation>Breite</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>隐藏</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Wayland 下窗口位置由桌面决定</source>
        <translation>Unter Wayland bestimmt der Desktop den Ort</translation>
    </message>
</context>
<context>
    <name>GradualChangeCtrlWidget</name>
    <message>
        <source>32级</source>
        <translation>32 Stufen</translation>
    </message>
    <message>
        <source>64级</source>
        <translation>64 Stufen</translation>
    </message>
    <message>
        <source>128级</source>
        <translation>128 Stufen</translation>
    </message>
    <message>
        <source>256级</source>
        <translation>256 Stufen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>窗口</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>纯色</source>
        <translation>Reinheit</translation>
    </message>
    <message>
        <source>渐变</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>网格</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>定位</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>显示屏测试工具-Tarn</source>
        <translation>LED-Bildschirm-Testwerkzeug - Tarn</translation>
    </message>
</context>
<context>
    <name>MixSetting</name>
    <message>
        <source>蓝色</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>青色</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>绿色</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>横线</source>
        <translation>Waagerecht</translation>
    </message>
    <message>
        <source>紫色</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>红色</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>左斜</source>
        <translation>Links /</translation>
    </message>
    <message>
        <source>右斜</source>
        <translation>Rechts \</translation>
    </message>
    <message>
        <source>竖线</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>白色</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>黄色</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>网格设置</source>
        <translation>Rastereinstellungen</translation>
    </message>
    <message>
        <source>背景色</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>线条宽度</source>
        <translation>Linienbreite</translation>
    </message>
    <message>
        <source>线条间距</source>
        <translation>Linienabstand</translation>
    </message>
    <message>
        <source>混测设置</source>
        <translation>Mischtest</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Alle wählen</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>混测设置：请至少选中一项！</source>
        <translation>Mischtest: Bitte mindestens einen Punkt wählen!</translation>
    </message>
</context>
<context>
    <name>RunIndicator</name>
    <message>
        <source>运行指示灯</source>
        <translation>Betriebslampe</translation>
    </message>
</context>
<context>
    <name>ScrAboutWidget</name>
    <message>
        <source>Tarn：LED显示屏专业解决方案</source>
        <translation>Tarn: professionelle Lösungen für LED-Bildwände</translation>
    </message>
    <message>
        <source>1. LED显示屏控制系统</source>
        <translation>1. Steuerungen für LED-Bildwände</translation>
    </message>
    <message>
        <source>2. LED显示屏测试与校正工具</source>
        <translation>2. Werkzeuge zum Prüfen und Kalibrieren von LED-Bildwänden</translation>
    </message>
    <message>
        <source>3. 视频处理与信号传输设备</source>
        <translation>3. Geräte für Videobearbeitung und Signalübertragung</translation>
    </message>
    <message>
        <source>全国技术支持电话：+1 555-0142</source>
        <translation>Technischer Kundendienst, landesweit, Telefon: +1 555-0142</translation>
    </message>
</context>
<context>
    <name>ScrGridCtrlDialog</name>
    <message>
        <source>显示屏测试工具-网格</source>
        <translation>LED-Bildschirm-Testwerkzeug - Raster</translation>
    </message>
    <message>
        <source>速度</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>网格叠加</source>
        <translation>Überlagern</translation>
    </message>
    <message>
        <source>混测</source>
        <translation>Gemischt</translation>
    </message>
    <message>
        <source>老化</source>
        <translation>Alterung</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Erweitert</translation>
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
        <translation>Links /</translation>
    </message>
    <message>
        <source>右斜</source>
        <translation>Rechts \</translation>
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
        <translation>[Pos1]</translation>
    </message>
    <message>
        <source>显示/隐藏窗口右下角处提示</source>
        <translation>Hilfe rechts unten im Fenster ein/aus</translation>
    </message>
    <message>
        <source>[End]</source>
        <translation>[Ende]</translation>
    </message>
    <message>
        <source>显示/隐藏窗口中心处提示</source>
        <translation>Hinweis in der Mitte des Fensters ein/aus</translation>
    </message>
    <message>
        <source>[PageUp]</source>
        <translation>[Bild↑]</translation>
    </message>
    <message>
        <source>功能向上切换</source>
        <translation>Voriges Testbild</translation>
    </message>
    <message>
        <source>[PageDown]</source>
        <translation>[Bild↓]</translation>
    </message>
    <message>
        <source>功能向下切换</source>
        <translation>Nächstes Testbild</translation>
    </message>
    <message>
        <source>[Shift+↑↓←→]</source>
        <translation>[Umschalt+↑↓←→]</translation>
    </message>
    <message>
        <source>窗口大小</source>
        <translation>Fenstergröße</translation>
    </message>
    <message>
        <source>[Shift+F/双击]</source>
        <translation>[Umschalt+F | Doppelklick]</translation>
    </message>
    <message>
        <source>全屏/取消全屏</source>
        <translation>Vollbild ein/aus</translation>
    </message>
    <message>
        <source>[Ctrl+↑↓←→]</source>
        <translation>[Strg+↑↓←→]</translation>
    </message>
    <message>
        <source>窗口位置</source>
        <translation>Fensterposition</translation>
    </message>
    <message>
        <source>[↑↓←→]</source>
        <translation>[↑↓←→]</translation>
    </message>
    <message>
        <source>灰度调节</source>
        <translation>Graustufe</translation>
    </message>
    <message>
        <source>[Insert/Delete]</source>
        <translation>[Einfg | Entf]</translation>
    </message>
    <message>
        <source>自动增加/减少灰度</source>
        <translation>Graustufe automatisch +/−</translation>
    </message>
    <message>
        <source>[Shift+H]</source>
        <translation>[Umschalt+H]</translation>
    </message>
    <message>
        <source>显示/隐藏窗口</source>
        <translation>Fenster ein/aus</translation>
    </message>
    <message>
        <source>提示：Mac使用本工具时，请把菜单栏设置隐藏掉</source>
        <translation>Tipp: Auf dem Mac die Menüleiste ausblenden, solange das Werkzeug läuft</translation>
    </message>
    <message>
        <source>[Fn+←]</source>
        <translation>[Pos1 | Fn+←]</translation>
    </message>
    <message>
        <source>[Fn+→]</source>
        <translation>[Ende | Fn+→]</translation>
    </message>
    <message>
        <source>[Fn+↑]</source>
        <translation>[Bild↑ | Fn+↑]</translation>
    </message>
    <message>
        <source>[Fn+↓]</source>
        <translation>[Bild↓ | Fn+↓]</translation>
    </message>
    <message>
        <source>[⇧+↑↓←→]</source>
        <translation>[⇧+↑↓←→]</translation>
    </message>
    <message>
        <source>[⇧+F/双击]</source>
        <translation>[⇧+F | Doppelklick]</translation>
    </message>
    <message>
        <source>[⌘+↑↓←→]</source>
        <translation>[Strg | ⌘ +↑↓←→]</translation>
    </message>
    <message>
        <source>[Fn+Enter/Delete]</source>
        <translation>[Enter (Ziff.) | Rücktaste]</translation>
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
        <translation>Tempo</translation>
    </message>
    <message>
        <source>当前灰度</source>
        <translation>Akt. Grau</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>手动</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Grau</translation>
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
        <translation>Modulbreite</translation>
    </message>
    <message>
        <source>模块高度</source>
        <translation>Modulhöhe</translation>
    </message>
    <message>
        <source>模块行数</source>
        <translation>Modulzeilen</translation>
    </message>
    <message>
        <source>模块列数</source>
        <translation>Modulspalten</translation>
    </message>
    <message>
        <source>字体颜色</source>
        <translation>Zahlenfarbe</translation>
    </message>
    <message>
        <source>模块线颜色</source>
        <translation>Modullinien</translation>
    </message>
    <message>
        <source>扫描板颜色</source>
        <translation>Kartenlinien</translation>
    </message>
    <message>
        <source>从左到右</source>
        <translation>Links nach rechts</translation>
    </message>
    <message>
        <source>从右到左</source>
        <translation>Rechts nach links</translation>
    </message>
    <message>
        <source>纯色背景</source>
        <translation>Einfarbig</translation>
    </message>
    <message>
        <source>背景图</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>定位</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>选择背景图</source>
        <translation>Hintergrundbild wählen</translation>
    </message>
    <message>
        <source>图片文件 (*.jpg *.png *.bmp)</source>
        <translation>Bilder (*.jpg *.png *.bmp)</translation>
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
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>UX::Widgets::TitleBar</name>
    <message>
        <source>最小化</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
</context>
</TS>
