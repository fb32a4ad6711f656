<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="zh_CN">
<context>
    <name>AdvancedSetup</name>
    <message>
        <source>常规</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>加粗</source>
        <translation>Negrita</translation>
    </message>
    <message>
        <source>斜体</source>
        <translation>Cursiva</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>字体</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>字形</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>行起始数</source>
        <translation>Primera fila</translation>
    </message>
    <message>
        <source>列起始数</source>
        <translation>Primera col.</translation>
    </message>
    <message>
        <source>模块线宽</source>
        <translation>Línea módulo</translation>
    </message>
    <message>
        <source>扫描版线宽</source>
        <translation>Línea tarjeta</translation>
    </message>
</context>
<context>
    <name>CommonHelper</name>
    <message>
        <source>红</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>绿</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>蓝</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>白</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>黄</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>青</source>
        <translation>Cian</translation>
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
        <translation>La curva gamma de la pantalla está alterada (luz nocturna o calibración)</translation>
    </message>
    <message>
        <source>桌面缩放了画面，图案像素与屏幕像素不是一一对应</source>
        <translation>El escritorio escala la imagen: los píxeles del patrón no son los de la pantalla</translation>
    </message>
    <message>
        <source>屏幕的每个颜色通道不足8位</source>
        <translation>La pantalla tiene menos de 8 bits por canal de color</translation>
    </message>
    <message>
        <source>测试窗口有一部分不在任何屏幕上</source>
        <translation>Una parte de la ventana de prueba no está en ninguna pantalla</translation>
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
        <translation>[Inicio | Fn+←]: mostrar/ocultar esta ayuda
[Fin | Fn+→]: mostrar/ocultar la indicación central
[RePág | Fn+↑]: patrón anterior
[AvPág | Fn+↓]: patrón siguiente
[⇧+↑↓←→]: tamaño de la ventana
[⇧+F | doble clic]: pantalla completa sí/no
[Ctrl | ⌘ +↑↓←→]: posición de la ventana
[↑↓←→]: nivel de gris
[Intro num. | Retroceso]: gris automático +/−
[⇧+H]: mostrar/ocultar la ventana
</translation>
    </message>
    <message>
        <source> 隐藏</source>
        <translation> Ocultar</translation>
    </message>
    <message>
        <source>窗口信息：</source>
        <translation>Ventana:</translation>
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
        <translation>Ancho</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>隐藏</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Wayland 下窗口位置由桌面决定</source>
        <translation>En Wayland el escritorio elige el lugar</translation>
    </message>
</context>
<context>
    <name>GradualChangeCtrlWidget</name>
    <message>
        <source>32级</source>
        <translation>32 niveles</translation>
    </message>
    <message>
        <source>64级</source>
        <translation>64 niveles</translation>
    </message>
    <message>
        <source>128级</source>
        <translation>128 niveles</translation>
    </message>
    <message>
        <source>256级</source>
        <translation>256 niveles</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>窗口</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>纯色</source>
        <translation>Pureza</translation>
    </message>
    <message>
        <source>渐变</source>
        <translation>Degradado</translation>
    </message>
    <message>
        <source>网格</source>
        <translation>Rejilla</translation>
    </message>
    <message>
        <source>定位</source>
        <translation>Diseño</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>显示屏测试工具-Tarn</source>
        <translation>Herramienta de prueba de pantallas LED - Tarn</translation>
    </message>
</context>
<context>
    <name>MixSetting</name>
    <message>
        <source>蓝色</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>青色</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>绿色</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>横线</source>
        <translation>Horizontales</translation>
    </message>
    <message>
        <source>紫色</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>红色</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>左斜</source>
        <translation>Izq. /</translation>
    </message>
    <message>
        <source>右斜</source>
        <translation>Der. \</translation>
    </message>
    <message>
        <source>竖线</source>
        <translation>Verticales</translation>
    </message>
    <message>
        <source>白色</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>黄色</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>网格设置</source>
        <translation>Ajustes de la rejilla</translation>
    </message>
    <message>
        <source>背景色</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>线条宽度</source>
        <translation>Grosor de línea</translation>
    </message>
    <message>
        <source>线条间距</source>
        <translation>Separación de líneas</translation>
    </message>
    <message>
        <source>混测设置</source>
        <translation>Prueba combinada</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>混测设置：请至少选中一项！</source>
        <translation>Prueba combinada: ¡elija al menos un elemento!</translation>
    </message>
</context>
<context>
    <name>RunIndicator</name>
    <message>
        <source>运行指示灯</source>
        <translation>Testigo de marcha</translation>
    </message>
</context>
<context>
    <name>ScrAboutWidget</name>
    <message>
        <source>Tarn：LED显示屏专业解决方案</source>
        <translation>Tarn: soluciones profesionales para pantallas LED</translation>
    </message>
    <message>
        <source>1. LED显示屏控制系统</source>
        <translation>1. Sistemas de control para pantallas LED</translation>
    </message>
    <message>
        <source>2. LED显示屏测试与校正工具</source>
        <translation>2. Herramientas de prueba y calibración de pantallas LED</translation>
    </message>
    <message>
        <source>3. 视频处理与信号传输设备</source>
        <translation>3. Equipos de procesamiento de vídeo y transmisión de señal</translation>
    </message>
    <message>
        <source>全国技术支持电话：+1 555-0142</source>
        <translation>Soporte técnico nacional, teléfono: +1 555-0142</translation>
    </message>
</context>
<context>
    <name>ScrGridCtrlDialog</name>
    <message>
        <source>显示屏测试工具-网格</source>
        <translation>Herramienta de prueba de pantallas LED - Rejilla</translation>
    </message>
    <message>
        <source>速度</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>网格叠加</source>
        <translation>Superponer</translation>
    </message>
    <message>
        <source>混测</source>
        <translation>Combin.</translation>
    </message>
    <message>
        <source>老化</source>
        <translation>Envejec.</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Iniciar</translation>
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
        <translation>Izq. /</translation>
    </message>
    <message>
        <source>右斜</source>
        <translation>Der. \</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pausa</translation>
    </message>
</context>
<context>
    <name>ScrHelperCtrlWidget</name>
    <message>
        <source>[Home]</source>
        <translation>[Inicio]</translation>
    </message>
    <message>
        <source>显示/隐藏窗口右下角处提示</source>
        <translation>Mostrar/ocultar la ayuda en la esquina inferior derecha</translation>
    </message>
    <message>
        <source>[End]</source>
        <translation>[Fin]</translation>
    </message>
    <message>
        <source>显示/隐藏窗口中心处提示</source>
        <translation>Mostrar/ocultar la indicación en el centro de la ventana</translation>
    </message>
    <message>
        <source>[PageUp]</source>
        <translation>[RePág]</translation>
    </message>
    <message>
        <source>功能向上切换</source>
        <translation>Patrón anterior</translation>
    </message>
    <message>
        <source>[PageDown]</source>
        <translation>[AvPág]</translation>
    </message>
    <message>
        <source>功能向下切换</source>
        <translation>Patrón siguiente</translation>
    </message>
    <message>
        <source>[Shift+↑↓←→]</source>
        <translation>[Mayús+↑↓←→]</translation>
    </message>
    <message>
        <source>窗口大小</source>
        <translation>Tamaño de la ventana</translation>
    </message>
    <message>
        <source>[Shift+F/双击]</source>
        <translation>[Mayús+F | doble clic]</translation>
    </message>
    <message>
        <source>全屏/取消全屏</source>
        <translation>Pantalla completa sí/no</translation>
    </message>
    <message>
        <source>[Ctrl+↑↓←→]</source>
        <translation>[Ctrl+↑↓←→]</translation>
    </message>
    <message>
        <source>窗口位置</source>
        <translation>Posición de la ventana</translation>
    </message>
    <message>
        <source>[↑↓←→]</source>
        <translation>[↑↓←→]</translation>
    </message>
    <message>
        <source>灰度调节</source>
        <translation>Nivel de gris</translation>
    </message>
    <message>
        <source>[Insert/Delete]</source>
        <translation>[Insert | Supr]</translation>
    </message>
    <message>
        <source>自动增加/减少灰度</source>
        <translation>Nivel de gris automático +/−</translation>
    </message>
    <message>
        <source>[Shift+H]</source>
        <translation>[Mayús+H]</translation>
    </message>
    <message>
        <source>显示/隐藏窗口</source>
        <translation>Mostrar/ocultar la ventana</translation>
    </message>
    <message>
        <source>提示：Mac使用本工具时，请把菜单栏设置隐藏掉</source>
        <translation>Consejo: en un Mac, oculte la barra de menús mientras usa la herramienta</translation>
    </message>
    <message>
        <source>[Fn+←]</source>
        <translation>[Inicio | Fn+←]</translation>
    </message>
    <message>
        <source>[Fn+→]</source>
        <translation>[Fin | Fn+→]</translation>
    </message>
    <message>
        <source>[Fn+↑]</source>
        <translation>[RePág | Fn+↑]</translation>
    </message>
    <message>
        <source>[Fn+↓]</source>
        <translation>[AvPág | Fn+↓]</translation>
    </message>
    <message>
        <source>[⇧+↑↓←→]</source>
        <translation>[⇧+↑↓←→]</translation>
    </message>
    <message>
        <source>[⇧+F/双击]</source>
        <translation>[⇧+F | doble clic]</translation>
    </message>
    <message>
        <source>[⌘+↑↓←→]</source>
        <translation>[Ctrl | ⌘ +↑↓←→]</translation>
    </message>
    <message>
        <source>[Fn+Enter/Delete]</source>
        <translation>[Intro num. | Retroceso]</translation>
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
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>当前灰度</source>
        <translation>Gris actual</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>手动</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pausa</translation>
    </message>
</context>
<context>
    <name>TarnTool</name>
    <message>
        <source>模块宽度</source>
        <translation>Ancho módulo</translation>
    </message>
    <message>
        <source>模块高度</source>
        <translation>Alto módulo</translation>
    </message>
    <message>
        <source>模块行数</source>
        <translation>Filas módulos</translation>
    </message>
    <message>
        <source>模块列数</source>
        <translation>Columnas mód.</translation>
    </message>
    <message>
        <source>字体颜色</source>
        <translation>Color números</translation>
    </message>
    <message>
        <source>模块线颜色</source>
        <translation>Líneas módulos</translation>
    </message>
    <message>
        <source>扫描板颜色</source>
        <translation>Líneas tarjetas</translation>
    </message>
    <message>
        <source>从左到右</source>
        <translation>Izquierda a derecha</translation>
    </message>
    <message>
        <source>从右到左</source>
        <translation>Derecha a izquierda</translation>
    </message>
    <message>
        <source>纯色背景</source>
        <translation>Color sólido</translation>
    </message>
    <message>
        <source>背景图</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>定位</source>
        <translation>Diseño</translation>
    </message>
    <message>
        <source>选择背景图</source>
        <translation>Elegir una imagen de fondo</translation>
    </message>
    <message>
        <source>图片文件 (*.jpg *.png *.bmp)</source>
        <translation>Imágenes (*.jpg *.png *.bmp)</translation>
    </message>
</context>
<context>
    <name>UX::Widgets::FramelessDialog</name>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>UX::Widgets::TitleBar</name>
    <message>
        <source>最小化</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
</context>
</TS>
