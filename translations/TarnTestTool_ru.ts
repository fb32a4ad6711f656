<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="zh_CN">
<context>
    <name>AdvancedSetup</name>
    <message>
        <source>常规</source>
        <translation>Обычный</translation>
    </message>
    <message>
        <source>加粗</source>
        <translation>Жирный</translation>
    </message>
    <message>
        <source>斜体</source>
        <translation>Курсив</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Дополнительно</translation>
    </message>
    <message>
        <source>字体</source>
        <translation>Шрифт</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>字形</source>
        <translation>Начертание</translation>
    </message>
    <message>
        <source>行起始数</source>
        <translation>Строки с №</translation>
    </message>
    <message>
        <source>列起始数</source>
        <translation>Столбцы с №</translation>
    </message>
    <message>
        <source>模块线宽</source>
        <translation>Линия модуля</translation>
    </message>
    <message>
        <source>扫描版线宽</source>
        <translation>Линия платы</translation>
    </message>
</context>
<context>
    <name>CommonHelper</name>
    <message>
        <source>红</source>
        <translation>Красный</translation>
    </message>
    <message>
        <source>绿</source>
        <translation>Зелёный</translation>
    </message>
    <message>
        <source>蓝</source>
        <translation>Синий</translation>
    </message>
    <message>
        <source>白</source>
        <translation>Белый</translation>
    </message>
    <message>
        <source>黄</source>
        <translation>Жёлтый</translation>
    </message>
    <message>
        <source>青</source>
        <translation>Голубой</translation>
    </message>
    <message>
        <source>紫</source>
        <translation>Пурпурный</translation>
    </message>
</context>
<context>
    <name>DisplaySign</name>
    <message>
        <source>屏幕的伽马曲线被更改（夜间模式或色彩校准）</source>
        <translation>Гамма-кривая экрана изменена (ночной режим или калибровка)</translation>
    </message>
    <message>
        <source>桌面缩放了画面，图案像素与屏幕像素不是一一对应</source>
        <translation>Рабочий стол масштабирует изображение: пиксели шаблона не совпадают с пикселями экрана</translation>
    </message>
    <message>
        <source>屏幕的每个颜色通道不足8位</source>
        <translation>У экрана меньше 8 бит на цветовой канал</translation>
    </message>
    <message>
        <source>测试窗口有一部分不在任何屏幕上</source>
        <translation>Часть тестового окна не попадает ни на один экран</translation>
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
        <translation>[Home | Fn+←]: показать/скрыть эту подсказку
[End | Fn+→]: показать/скрыть подсказку в центре
[PageUp | Fn+↑]: предыдущий тест
[PageDown | Fn+↓]: следующий тест
[⇧+↑↓←→]: размер окна
[⇧+F | двойной щелчок]: полный экран вкл/выкл
[Ctrl | ⌘ +↑↓←→]: положение окна
[↑↓←→]: уровень серого
[Enter (цифр.) | Backspace]: серый автоматически +/−
[⇧+H]: показать/скрыть окно
</translation>
    </message>
    <message>
        <source> 隐藏</source>
        <translation> Скрыть</translation>
    </message>
    <message>
        <source>窗口信息：</source>
        <translation>Окно:</translation>
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
        <translation>Ширина</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Показать</translation>
    </message>
    <message>
        <source>隐藏</source>
        <translation>Скрыть</translation>
    </message>
    <message>
        <source>Wayland 下窗口位置由桌面决定</source>
        <translation>В Wayland место выбирает рабочий стол</translation>
    </message>
</context>
<context>
    <name>GradualChangeCtrlWidget</name>
    <message>
        <source>32级</source>
        <translation>32 ур.</translation>
    </message>
    <message>
        <source>64级</source>
        <translation>64 ур.</translation>
    </message>
    <message>
        <source>128级</source>
        <translation>128 ур.</translation>
    </message>
    <message>
        <source>256级</source>
        <translation>256 ур.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>窗口</source>
        <translation>Окно</translation>
    </message>
    <message>
        <source>纯色</source>
        <translation>Чистота</translation>
    </message>
    <message>
        <source>渐变</source>
        <translation>Градиент</translation>
    </message>
    <message>
        <source>网格</source>
        <translation>Сетка</translation>
    </message>
    <message>
        <source>定位</source>
        <translation>Раскладка</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>显示屏测试工具-Tarn</source>
        <translation>Инструмент проверки LED-экранов - Tarn</translation>
    </message>
</context>
<context>
    <name>MixSetting</name>
    <message>
        <source>蓝色</source>
        <translation>Синий</translation>
    </message>
    <message>
        <source>青色</source>
        <translation>Голубой</translation>
    </message>
    <message>
        <source>绿色</source>
        <translation>Зелёный</translation>
    </message>
    <message>
        <source>横线</source>
        <translation>Горизонт.</translation>
    </message>
    <message>
        <source>紫色</source>
        <translation>Пурпурный</translation>
    </message>
    <message>
        <source>红色</source>
        <translation>Красный</translation>
    </message>
    <message>
        <source>左斜</source>
        <translation>Влево /</translation>
    </message>
    <message>
        <source>右斜</source>
        <translation>Вправо \</translation>
    </message>
    <message>
        <source>竖线</source>
        <translation>Вертик.</translation>
    </message>
    <message>
        <source>白色</source>
        <translation>Белый</translation>
    </message>
    <message>
        <source>黄色</source>
        <translation>Жёлтый</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Дополнительно</translation>
    </message>
    <message>
        <source>网格设置</source>
        <translation>Настройки сетки</translation>
    </message>
    <message>
        <source>背景色</source>
        <translation>Фон</translation>
    </message>
    <message>
        <source>线条宽度</source>
        <translation>Толщина линий</translation>
    </message>
    <message>
        <source>线条间距</source>
        <translation>Шаг линий</translation>
    </message>
    <message>
        <source>混测设置</source>
        <translation>Смешанный тест</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Выбрать все</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Внимание</translation>
    </message>
    <message>
        <source>混测设置：请至少选中一项！</source>
        <translation>Смешанный тест: выберите хотя бы один пункт!</translation>
    </message>
</context>
<context>
    <name>RunIndicator</name>
    <message>
        <source>运行指示灯</source>
        <translation>Индикатор работы</translation>
    </message>
</context>
<context>
    <name>ScrAboutWidget</name>
    <message>
        <source>Tarn：LED显示屏专业解决方案</source>
        <translation>Tarn: профессиональные решения для светодиодных экранов</translation>
    </message>
    <message>
        <source>1. LED显示屏控制系统</source>
        <translation>1. Системы управления светодиодными экранами</translation>
    </message>
    <message>
        <source>2. LED显示屏测试与校正工具</source>
        <translation>2. Средства проверки и калибровки светодиодных экранов</translation>
    </message>
    <message>
        <source>3. 视频处理与信号传输设备</source>
        <translation>3. Оборудование для обработки видео и передачи сигнала</translation>
    </message>
    <message>
        <source>全国技术支持电话：+1 555-0142</source>
        <translation>Техническая поддержка по всей стране, телефон: +1 555-0142</translation>
    </message>
</context>
<context>
    <name>ScrGridCtrlDialog</name>
    <message>
        <source>显示屏测试工具-网格</source>
        <translation>Инструмент проверки LED-экранов - Сетка</translation>
    </message>
    <message>
        <source>速度</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Серый</translation>
    </message>
    <message>
        <source>网格叠加</source>
        <translation>Наложение</translation>
    </message>
    <message>
        <source>混测</source>
        <translation>Смешан.</translation>
    </message>
    <message>
        <source>老化</source>
        <translation>Прогон</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Ещё…</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>横</source>
        <translation>Гориз.</translation>
    </message>
    <message>
        <source>竖</source>
        <translation>Верт.</translation>
    </message>
    <message>
        <source>左斜</source>
        <translation>Влево /</translation>
    </message>
    <message>
        <source>右斜</source>
        <translation>Вправо \</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Пауза</translation>
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
        <translation>Показать/скрыть подсказку в правом нижнем углу окна</translation>
    </message>
    <message>
        <source>[End]</source>
        <translation>[End]</translation>
    </message>
    <message>
        <source>显示/隐藏窗口中心处提示</source>
        <translation>Показать/скрыть подсказку в центре окна</translation>
    </message>
    <message>
        <source>[PageUp]</source>
        <translation>[PageUp]</translation>
    </message>
    <message>
        <source>功能向上切换</source>
        <translation>Предыдущий тест</translation>
    </message>
    <message>
        <source>[PageDown]</source>
        <translation>[PageDown]</translation>
    </message>
    <message>
        <source>功能向下切换</source>
        <translation>Следующий тест</translation>
    </message>
    <message>
        <source>[Shift+↑↓←→]</source>
        <translation>[Shift+↑↓←→]</translation>
    </message>
    <message>
        <source>窗口大小</source>
        <translation>Размер окна</translation>
    </message>
    <message>
        <source>[Shift+F/双击]</source>
        <translation>[Shift+F | дв. щелчок]</translation>
    </message>
    <message>
        <source>全屏/取消全屏</source>
        <translation>Полный экран вкл/выкл</translation>
    </message>
    <message>
        <source>[Ctrl+↑↓←→]</source>
        <translation>[Ctrl+↑↓←→]</translation>
    </message>
    <message>
        <source>窗口位置</source>
        <translation>Положение окна</translation>
    </message>
    <message>
        <source>[↑↓←→]</source>
        <translation>[↑↓←→]</translation>
    </message>
    <message>
        <source>灰度调节</source>
        <translation>Уровень серого</translation>
    </message>
    <message>
        <source>[Insert/Delete]</source>
        <translation>[Insert | Delete]</translation>
    </message>
    <message>
        <source>自动增加/减少灰度</source>
        <translation>Уровень серого автоматически +/−</translation>
    </message>
    <message>
        <source>[Shift+H]</source>
        <translation>[Shift+H]</translation>
    </message>
    <message>
        <source>显示/隐藏窗口</source>
        <translation>Показать/скрыть окно</translation>
    </message>
    <message>
        <source>提示：Mac使用本工具时，请把菜单栏设置隐藏掉</source>
        <translation>Совет: на Mac скройте строку меню на время работы с программой</translation>
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
        <translation>[⇧+F | двойной щелчок]</translation>
    </message>
    <message>
        <source>[⌘+↑↓←→]</source>
        <translation>[Ctrl | ⌘ +↑↓←→]</translation>
    </message>
    <message>
        <source>[Fn+Enter/Delete]</source>
        <translation>[Enter (цифр.) | Backspace]</translation>
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
        <translation>Авто</translation>
    </message>
    <message>
        <source>速度</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>当前灰度</source>
        <translation>Тек. серый</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>手动</source>
        <translation>Ручной</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Серый</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Пауза</translation>
    </message>
</context>
<context>
    <name>TarnTool</name>
    <message>
        <source>模块宽度</source>
        <translation>Ширина модуля</translation>
    </message>
    <message>
        <source>模块高度</source>
        <translation>Высота модуля</translation>
    </message>
    <message>
        <source>模块行数</source>
        <translation>Строк модулей</translation>
    </message>
    <message>
        <source>模块列数</source>
        <translation>Столбц. модул.</translation>
    </message>
    <message>
        <source>字体颜色</source>
        <translation>Цвет номеров</translation>
    </message>
    <message>
        <source>模块线颜色</source>
        <translation>Линии модулей</translation>
    </message>
    <message>
        <source>扫描板颜色</source>
        <translation>Линии плат</translation>
    </message>
    <message>
        <source>从左到右</source>
        <translation>Слева направо</translation>
    </message>
    <message>
        <source>从右到左</source>
        <translation>Справа налево</translation>
    </message>
    <message>
        <source>纯色背景</source>
        <translation>Цвет фона</translation>
    </message>
    <message>
        <source>背景图</source>
        <translation>Картинка</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Ещё…</translation>
    </message>
    <message>
        <source>定位</source>
        <translation>Раскладка</translation>
    </message>
    <message>
        <source>选择背景图</source>
        <translation>Выбор фоновой картинки</translation>
    </message>
    <message>
        <source>图片文件 (*.jpg *.png *.bmp)</source>
        <translation>Картинки (*.jpg *.png *.bmp)</translation>
    </message>
</context>
<context>
    <name>UX::Widgets::FramelessDialog</name>
    <message>
        <source>确定</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>UX::Widgets::TitleBar</name>
    <message>
        <source>最小化</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
</context>
</TS>
