<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>DemoWindow</name>
    <message>
        <source>A frameless window</source>
        <translation>无边框窗口</translation>
    </message>
    <message>
        <source>Drag me by the strip or by any free place.
Pull an edge or a corner to resize me.
Double-click the strip to maximise me.</source>
        <translation>拖动标题栏或任意空白处可移动窗口。
拖动边缘或角落可调整大小。
双击标题栏可最大化。</translation>
    </message>
</context>
<context>
    <name>FileDialogPage</name>
    <message>
        <source>File dialog</source>
        <translation>文件对话框</translation>
    </message>
    <message>
        <source>QZelFileDialog opens one or several files, saves, also with a password, and chooses a folder. Right-click a folder or a file in it for its menus.</source>
        <translation>QZelFileDialog 可打开一个或多个文件、保存文件（可设密码）以及选择文件夹。在其中右击文件夹或文件可打开菜单。</translation>
    </message>
    <message>
        <source>Start folder</source>
        <translation>起始文件夹</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>The folder named below</source>
        <translation>下面填写的文件夹</translation>
    </message>
    <message>
        <source>The device&apos;s FTP folder</source>
        <translation>设备的 FTP 文件夹</translation>
    </message>
    <message>
        <source>A folder that does not exist</source>
        <translation>不存在的文件夹</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览…</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>过滤器</translation>
    </message>
    <message>
        <source>Text (*.txt);;Images (*.png *.jpg);;All (*)</source>
        <translation>文本 (*.txt);;图片 (*.png *.jpg);;全部 (*)</translation>
    </message>
    <message>
        <source>Save with the password option</source>
        <translation>保存时可设置密码</translation>
    </message>
    <message>
        <source>Static functions</source>
        <translation>静态函数</translation>
    </message>
    <message>
        <source>Open a file</source>
        <translation>打开一个文件</translation>
    </message>
    <message>
        <source>Open several</source>
        <translation>打开多个文件</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Built by hand, for its signals</source>
        <translation>自行构造，以接收信号</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Selected filter</source>
        <translation>所选过滤器</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message numerus="yes">
        <source>%n character(s)</source>
        <translation>
            <numerusform>%n 个字符</numerusform>
        </translation>
    </message>
    <message>
        <source>(by the function)</source>
        <translation>（由函数决定）</translation>
    </message>
</context>
<context>
    <name>FileManagerPage</name>
    <message>
        <source>File manager</source>
        <translation>文件管理器</translation>
    </message>
    <message>
        <source>QZelFileManagerWidget browses and deletes what lies in the device&apos;s FTP folder.</source>
        <translation>QZelFileManagerWidget 用于浏览和删除设备 FTP 文件夹中的内容。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Add samples</source>
        <translation>添加示例文件</translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>移除示例文件</translation>
    </message>
    <message>
        <source>The samples lie in a folder of their own, &quot;gallery-samples&quot;.</source>
        <translation>示例文件位于单独的文件夹“gallery-samples”中。</translation>
    </message>
    <message>
        <source>Cannot write there: %1</source>
        <translation>无法写入：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n entry(s)</source>
        <translation>
            <numerusform>%n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder does not exist</source>
        <translation>文件夹不存在</translation>
    </message>
</context>
<context>
    <name>FramePage</name>
    <message>
        <source>Frameless windows</source>
        <translation>无边框窗口</translation>
    </message>
    <message>
        <source>QZelBaseWindows moves and resizes by itself; QTitleBar is a strip to drag it by. This gallery&apos;s own window is one too.</source>
        <translation>QZelBaseWindows 自行处理移动和缩放，QTitleBar 是用来拖动它的标题栏。本程序的主窗口也是这样的窗口。</translation>
    </message>
    <message>
        <source>Show the window</source>
        <translation>显示窗口</translation>
    </message>
    <message>
        <source>Close it</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Border width</source>
        <translation>边框宽度</translation>
    </message>
    <message>
        <source>The pointer moves it</source>
        <translation>可用指针移动</translation>
    </message>
    <message>
        <source>The pointer resizes it</source>
        <translation>可用指针缩放</translation>
    </message>
    <message>
        <source>A new border width counts from the next resize. A change of the window&apos;s state switches moving and resizing by itself.</source>
        <translation>新的边框宽度在下次缩放后生效。窗口状态改变时，移动和缩放会自动开启或关闭。</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>A frameless window</source>
        <translation>无边框窗口</translation>
    </message>
    <message>
        <source>Theme colour</source>
        <translation>主题颜色</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Wine</source>
        <translation>酒红</translation>
    </message>
</context>
<context>
    <name>GalleryPage</name>
    <message>
        <source>The same in code</source>
        <translation>对应的代码</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
</context>
<context>
    <name>ImagesPage</name>
    <message>
        <source>Images</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Ten images lie in the library, for its windows and for a host&apos;s style sheet.</source>
        <translation>库中内置十幅图片，供其窗口和宿主程序的样式表使用。</translation>
    </message>
</context>
<context>
    <name>InputDialogsPage</name>
    <message>
        <source>Input dialogs</source>
        <translation>输入对话框</translation>
    </message>
    <message>
        <source>QZelDialog is the shell; the dialogs for a new password, a password and a folder name are built on it, and so are a host&apos;s own.</source>
        <translation>QZelDialog 是对话框外壳，设置密码、输入密码和文件夹名称对话框都以它为基础，宿主程序自己的对话框也可以。</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Confirm button</source>
        <translation>确认按钮</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Cancel button</source>
        <translation>取消按钮</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Show Confirm</source>
        <translation>显示确认按钮</translation>
    </message>
    <message>
        <source>Show Cancel</source>
        <translation>显示取消按钮</translation>
    </message>
    <message>
        <source>Confirm is enabled</source>
        <translation>启用确认按钮</translation>
    </message>
    <message>
        <source>Show the maximise button</source>
        <translation>显示最大化按钮</translation>
    </message>
    <message>
        <source>A bottom row of its own</source>
        <translation>使用自己的底部栏</translation>
    </message>
    <message>
        <source>PreAccept() refuses</source>
        <translation>PreAccept() 拒绝</translation>
    </message>
    <message>
        <source>PreClose() refuses</source>
        <translation>PreClose() 拒绝</translation>
    </message>
    <message>
        <source>Set a password</source>
        <translation>设置密码</translation>
    </message>
    <message>
        <source>The right one</source>
        <translation>正确的密码</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>占位文字</translation>
    </message>
    <message>
        <source>Letters and digits</source>
        <translation>字母和数字</translation>
    </message>
    <message>
        <source>Ask for the password</source>
        <translation>输入密码</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Ask for the name</source>
        <translation>输入名称</translation>
    </message>
    <message>
        <source>Any widget goes in here.</source>
        <translation>这里可以放置任意控件。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message numerus="yes">
        <source>%n character(s)</source>
        <translation>
            <numerusform>%n 个字符</numerusform>
        </translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>密码错误</translation>
    </message>
    <message>
        <source>(the dialog&apos;s own)</source>
        <translation>（对话框默认）</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>QTarnKit gallery</source>
        <translation>QTarnKit 控件展示</translation>
    </message>
</context>
<context>
    <name>MessageBoxPage</name>
    <message>
        <source>Message box</source>
        <translation>消息框</translation>
    </message>
    <message>
        <source>QUIMessageBox informs, warns and asks, with standard buttons or your own, and closes itself after some seconds if told to.</source>
        <translation>QUIMessageBox 用于通知、警告和询问，可使用标准按钮或自定义按钮，也可在数秒后自动关闭。</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>1  Information</source>
        <translation>1  信息</translation>
    </message>
    <message>
        <source>2  Warning</source>
        <translation>2  警告</translation>
    </message>
    <message>
        <source>3  Error</source>
        <translation>3  错误</translation>
    </message>
    <message>
        <source>4  Question</source>
        <translation>4  询问</translation>
    </message>
    <message>
        <source>0  No buttons</source>
        <translation>0  无按钮</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>备份</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>The backup has been written.</source>
        <translation>备份已写入。</translation>
    </message>
    <message>
        <source>Closes after (s)</source>
        <translation>自动关闭（秒）</translation>
    </message>
    <message>
        <source>Custom buttons</source>
        <translation>自定义按钮</translation>
    </message>
    <message>
        <source>Texts, by &quot;;&quot;</source>
        <translation>文字（以“;”分隔）</translation>
    </message>
    <message>
        <source>A custom button leaves the box open: whoever listens closes it.</source>
        <translation>自定义按钮不会关闭消息框，由接收信号的一方关闭。</translation>
    </message>
    <message>
        <source>Replace;Keep both</source>
        <translation>替换;全部保留</translation>
    </message>
</context>
<context>
    <name>ProgressPage</name>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>QWaitingDialog asks the user to wait, with a turning icon and a thin bar; CustomProgressBar floats over its parent.</source>
        <translation>QWaitingDialog 用旋转的图标和细进度条提示用户等待；CustomProgressBar 浮在父窗口之上。</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>提示文字</translation>
    </message>
    <message>
        <source>Copying. This takes a moment...</source>
        <translation>正在复制，请稍候…</translation>
    </message>
    <message>
        <source>With the bar</source>
        <translation>显示进度条</translation>
    </message>
    <message>
        <source>Copy (MB)</source>
        <translation>复制量 (MB)</translation>
    </message>
    <message>
        <source>Copy a file</source>
        <translation>复制文件</translation>
    </message>
    <message>
        <source>Only show it, 2 s</source>
        <translation>仅显示 2 秒</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>百分比</translation>
    </message>
    <message>
        <source>Show it for 2 s</source>
        <translation>显示 2 秒</translation>
    </message>
    <message>
        <source>Run to 100 %</source>
        <translation>走到 100 %</translation>
    </message>
    <message>
        <source>copied %1 MB</source>
        <translation>已复制 %1 MB</translation>
    </message>
    <message>
        <source>the copy failed</source>
        <translation>复制失败</translation>
    </message>
</context>
<context>
    <name>SignalLog</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>类</translation>
    </message>
    <message>
        <source>Signal or call</source>
        <translation>信号或调用</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>SpinBoxPage</name>
    <message>
        <source>Integer spin box</source>
        <translation>整数输入框</translation>
    </message>
    <message>
        <source>QZelIntSpinBox shows a slider below itself while it has the keyboard focus.</source>
        <translation>QZelIntSpinBox 获得键盘焦点时，会在下方显示一个滑块。</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>试一试</translation>
    </message>
    <message>
        <source>The slider floats over what lies below.</source>
        <translation>滑块浮在下方内容之上。</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>TitleStrip</name>
    <message>
        <source>QTarnKit gallery</source>
        <translation>QTarnKit 控件展示</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>浅色或深色</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Maximise or restore</source>
        <translation>最大化或还原</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>UnlockPage</name>
    <message>
        <source>Unlock notice</source>
        <translation>解锁提示</translation>
    </message>
    <message>
        <source>ClientUnlockWidget names the machine that has taken over this client and offers to unlock it.</source>
        <translation>ClientUnlockWidget 显示抢占本客户端的机器，并提供解锁按钮。</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Closes after clicks</source>
        <translation>点击几次后关闭</translation>
    </message>
    <message>
        <source>Unlock clicked</source>
        <translation>解锁点击次数</translation>
    </message>
    <message>
        <source>The notice can be asked for before a screen exists: ModalShow() then only remembers it, and TryShow() shows it once a screen has come. On a machine with a screen TryShow() has nothing to do.</source>
        <translation>可以在屏幕出现之前请求显示：此时 ModalShow() 只记下请求，屏幕出现后由 TryShow() 显示。在已有屏幕的机器上，TryShow() 无事可做。</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>已显示</translation>
    </message>
    <message>
        <source>not shown</source>
        <translation>未显示</translation>
    </message>
</context>
</TS>
