<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="zh_CN">
<context>
    <name>AdvancedSetup</name>
    <message>
        <source>常规</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>加粗</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>斜体</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>字体</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>字形</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>行起始数</source>
        <translation>1re ligne</translation>
    </message>
    <message>
        <source>列起始数</source>
        <translation>1re colonne</translation>
    </message>
    <message>
        <source>模块线宽</source>
        <translation>Trait module</translation>
    </message>
    <message>
        <source>扫描版线宽</source>
        <translation>Trait carte</translation>
    </message>
</context>
<context>
    <name>CommonHelper</name>
    <message>
        <source>红</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>绿</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>蓝</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>白</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>黄</source>
        <translation>Jaune</translation>
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
        <translation>La courbe gamma de l’écran est modifiée (mode nuit ou calibrage)</translation>
    </message>
    <message>
        <source>桌面缩放了画面，图案像素与屏幕像素不是一一对应</source>
        <translation>Le bureau met l’image à l’échelle : les pixels de la mire ne sont pas ceux de l’écran</translation>
    </message>
    <message>
        <source>屏幕的每个颜色通道不足8位</source>
        <translation>L’écran a moins de 8 bits par canal de couleur</translation>
    </message>
    <message>
        <source>测试窗口有一部分不在任何屏幕上</source>
        <translation>Une partie de la fenêtre de test n’est sur aucun écran</translation>
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
        <translation>[Début | Fn+←] : afficher/masquer cet aide-mémoire
[Fin | Fn+→] : afficher/masquer l&apos;indication au centre
[Page préc. | Fn+↑] : mire précédente
[Page suiv. | Fn+↓] : mire suivante
[⇧+↑↓←→] : taille de la fenêtre
[⇧+F | double clic] : plein écran oui/non
[Ctrl | ⌘ +↑↓←→] : position de la fenêtre
[↑↓←→] : niveau de gris
[Entrée pavé num. | Retour arr.] : gris auto +/−
[⇧+H] : afficher/masquer la fenêtre
</translation>
    </message>
    <message>
        <source> 隐藏</source>
        <translation> Masquer</translation>
    </message>
    <message>
        <source>窗口信息：</source>
        <translation>Fenêtre :</translation>
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
        <translation>Largeur</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>隐藏</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Wayland 下窗口位置由桌面决定</source>
        <translation>Sous Wayland, le bureau choisit la place</translation>
    </message>
</context>
<context>
    <name>GradualChangeCtrlWidget</name>
    <message>
        <source>32级</source>
        <translation>32 niveaux</translation>
    </message>
    <message>
        <source>64级</source>
        <translation>64 niveaux</translation>
    </message>
    <message>
        <source>128级</source>
        <translation>128 niveaux</translation>
    </message>
    <message>
        <source>256级</source>
        <translation>256 niveaux</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>窗口</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>纯色</source>
        <translation>Pureté</translation>
    </message>
    <message>
        <source>渐变</source>
        <translation>Dégradé</translation>
    </message>
    <message>
        <source>网格</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>定位</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>显示屏测试工具-Tarn</source>
        <translation>Outil de test d&apos;écran LED - Tarn</translation>
    </message>
</context>
<context>
    <name>MixSetting</name>
    <message>
        <source>蓝色</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>青色</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>绿色</source>
        <translation>Vert</translation>
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
        <translation>Rouge</translation>
    </message>
    <message>
        <source>左斜</source>
        <translation>Gauche /</translation>
    </message>
    <message>
        <source>右斜</source>
        <translation>Droite \</translation>
    </message>
    <message>
        <source>竖线</source>
        <translation>Verticales</translation>
    </message>
    <message>
        <source>白色</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>黄色</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>网格设置</source>
        <translation>Réglages de la grille</translation>
    </message>
    <message>
        <source>背景色</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>线条宽度</source>
        <translation>Épaisseur des lignes</translation>
    </message>
    <message>
        <source>线条间距</source>
        <translation>Espacement des lignes</translation>
    </message>
    <message>
        <source>混测设置</source>
        <translation>Test combiné</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Tout cocher</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Avis</translation>
    </message>
    <message>
        <source>混测设置：请至少选中一项！</source>
        <translation>Test combiné : choisissez au moins un élément !</translation>
    </message>
</context>
<context>
    <name>RunIndicator</name>
    <message>
        <source>运行指示灯</source>
        <translation>Voyant de marche</translation>
    </message>
</context>
<context>
    <name>ScrAboutWidget</name>
    <message>
        <source>Tarn：LED显示屏专业解决方案</source>
        <translation>Tarn : solutions professionnelles pour écrans LED</translation>
    </message>
    <message>
        <source>1. LED显示屏控制系统</source>
        <translation>1. Systèmes de commande pour écrans LED</translation>
    </message>
    <message>
        <source>2. LED显示屏测试与校正工具</source>
        <translation>2. Outils de test et d&apos;étalonnage pour écrans LED</translation>
    </message>
    <message>
        <source>3. 视频处理与信号传输设备</source>
        <translation>3. Équipements de traitement vidéo et de transmission</translation>
    </message>
    <message>
        <source>全国技术支持电话：+1 555-0142</source>
        <translation>Assistance technique nationale, téléphone : +1 555-0142</translation>
    </message>
</context>
<context>
    <name>ScrGridCtrlDialog</name>
    <message>
        <source>显示屏测试工具-网格</source>
        <translation>Outil de test d&apos;écran LED - Grille</translation>
    </message>
    <message>
        <source>速度</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>网格叠加</source>
        <translation>Superposer</translation>
    </message>
    <message>
        <source>混测</source>
        <translation>Combiné</translation>
    </message>
    <message>
        <source>老化</source>
        <translation>Vieillis.</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Démarrer</translation>
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
        <translation>Gauche /</translation>
    </message>
    <message>
        <source>右斜</source>
        <translation>Droite \</translation>
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
        <translation>[Début]</translation>
    </message>
    <message>
        <source>显示/隐藏窗口右下角处提示</source>
        <translation>Afficher/masquer l&apos;aide-mémoire en bas à droite de la fenêtre</translation>
    </message>
    <message>
        <source>[End]</source>
        <translation>[Fin]</translation>
    </message>
    <message>
        <source>显示/隐藏窗口中心处提示</source>
        <translation>Afficher/masquer l&apos;indication au centre de la fenêtre</translation>
    </message>
    <message>
        <source>[PageUp]</source>
        <translation>[Page préc.]</translation>
    </message>
    <message>
        <source>功能向上切换</source>
        <translation>Mire précédente</translation>
    </message>
    <message>
        <source>[PageDown]</source>
        <translation>[Page suiv.]</translation>
    </message>
    <message>
        <source>功能向下切换</source>
        <translation>Mire suivante</translation>
    </message>
    <message>
        <source>[Shift+↑↓←→]</source>
        <translation>[Maj+↑↓←→]</translation>
    </message>
    <message>
        <source>窗口大小</source>
        <translation>Taille de la fenêtre</translation>
    </message>
    <message>
        <source>[Shift+F/双击]</source>
        <translation>[Maj+F | double clic]</translation>
    </message>
    <message>
        <source>全屏/取消全屏</source>
        <translation>Plein écran oui/non</translation>
    </message>
    <message>
        <source>[Ctrl+↑↓←→]</source>
        <translation>[Ctrl+↑↓←→]</translation>
    </message>
    <message>
        <source>窗口位置</source>
        <translation>Position de la fenêtre</translation>
    </message>
    <message>
        <source>[↑↓←→]</source>
        <translation>[↑↓←→]</translation>
    </message>
    <message>
        <source>灰度调节</source>
        <translation>Niveau de gris</translation>
    </message>
    <message>
        <source>[Insert/Delete]</source>
        <translation>[Inser | Suppr]</translation>
    </message>
    <message>
        <source>自动增加/减少灰度</source>
        <translation>Niveau de gris automatique +/−</translation>
    </message>
    <message>
        <source>[Shift+H]</source>
        <translation>[Maj+H]</translation>
    </message>
    <message>
        <source>显示/隐藏窗口</source>
        <translation>Afficher/masquer la fenêtre</translation>
    </message>
    <message>
        <source>提示：Mac使用本工具时，请把菜单栏设置隐藏掉</source>
        <translation>Conseil : sur un Mac, masquez la barre des menus pendant l&apos;utilisation</translation>
    </message>
    <message>
        <source>[Fn+←]</source>
        <translation>[Début | Fn+←]</translation>
    </message>
    <message>
        <source>[Fn+→]</source>
        <translation>[Fin | Fn+→]</translation>
    </message>
    <message>
        <source>[Fn+↑]</source>
        <translation>[Page préc. | Fn+↑]</translation>
    </message>
    <message>
        <source>[Fn+↓]</source>
        <translation>[Page suiv. | Fn+↓]</translation>
    </message>
    <message>
        <source>[⇧+↑↓←→]</source>
        <translation>[⇧+↑↓←→]</translation>
    </message>
    <message>
        <source>[⇧+F/双击]</source>
        <translation>[⇧+F | double clic]</translation>
    </message>
    <message>
        <source>[⌘+↑↓←→]</source>
        <translation>[Ctrl | ⌘ +↑↓←→]</translation>
    </message>
    <message>
        <source>[Fn+Enter/Delete]</source>
        <translation>[Entrée num. | Retour arr.]</translation>
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
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>当前灰度</source>
        <translation>Gris actuel</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>手动</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Gris</translation>
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
        <translation>Largeur module</translation>
    </message>
    <message>
        <source>模块高度</source>
        <translation>Hauteur module</translation>
    </message>
    <message>
        <source>模块行数</source>
        <translation>Rangs modules</translation>
    </message>
    <message>
        <source>模块列数</source>
        <translation>Colonnes mod.</translation>
    </message>
    <message>
        <source>字体颜色</source>
        <translation>Coul. numéros</translation>
    </message>
    <message>
        <source>模块线颜色</source>
        <translation>Traits modules</translation>
    </message>
    <message>
        <source>扫描板颜色</source>
        <translation>Traits cartes</translation>
    </message>
    <message>
        <source>从左到右</source>
        <translation>De gauche à droite</translation>
    </message>
    <message>
        <source>从右到左</source>
        <translation>De droite à gauche</translation>
    </message>
    <message>
        <source>纯色背景</source>
        <translation>Uni</translation>
    </message>
    <message>
        <source>背景图</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>高级设置</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>定位</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>选择背景图</source>
        <translation>Choisir une image de fond</translation>
    </message>
    <message>
        <source>图片文件 (*.jpg *.png *.bmp)</source>
        <translation>Images (*.jpg *.png *.bmp)</translation>
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
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>UX::Widgets::TitleBar</name>
    <message>
        <source>最小化</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
</context>
</TS>
