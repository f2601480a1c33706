<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CalibrateAreaData</name>
    <message>
        <source>%1 has no vertical length.</source>
        <translation>%1没有垂直长度。</translation>
    </message>
    <message>
        <source>%1 has no length.</source>
        <translation>%1没有长度。</translation>
    </message>
    <message>
        <source>%1 has no horizontal length.</source>
        <translation>%1没有水平长度。</translation>
    </message>
    <message>
        <source>%1 has no width.</source>
        <translation>%1没有宽度。</translation>
    </message>
</context>
<context>
    <name>CalibrateAreaScene</name>
    <message>
        <source>Calibrate area</source>
        <translation>标定区域</translation>
    </message>
    <message>
        <source>Vertical length</source>
        <translation>垂直长度</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Horizontal length</source>
        <translation>水平长度</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Vertical ruler</source>
        <translation>垂直标尺</translation>
    </message>
    <message>
        <source>Horizontal ruler</source>
        <translation>水平标尺</translation>
    </message>
    <message>
        <source>The area has no length here.</source>
        <translation>该区域此处缺少长度。</translation>
    </message>
</context>
<context>
    <name>CalibrateAreaTemplate</name>
    <message>
        <source>region</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>verticalLine</source>
        <translation>垂直标尺</translation>
    </message>
    <message>
        <source>horizontalLine</source>
        <translation>水平标尺</translation>
    </message>
    <message>
        <source>vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>meter</source>
        <translation>米</translation>
    </message>
    <message>
        <source>horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Lane calibration</source>
        <translation>车道标定</translation>
    </message>
    <message>
        <source>Scene calibration</source>
        <translation>场景标定</translation>
    </message>
</context>
<context>
    <name>DetectionScene</name>
    <message>
        <source>Detection area</source>
        <translation>检测区域</translation>
    </message>
    <message>
        <source>Detection configuration</source>
        <translation>检测配置</translation>
    </message>
</context>
<context>
    <name>DrawScene</name>
    <message>
        <source>Please draw %1!</source>
        <translation>请绘制%1！</translation>
    </message>
    <message>
        <source>Draw %1 complete!</source>
        <translation>%1绘制完成！</translation>
    </message>
</context>
<context>
    <name>DrawingHint</name>
    <message>
        <source>Redraw draws the figure anew.</source>
        <translation>“重绘”重新绘制图形。</translation>
    </message>
    <message>
        <source>Refused: lines would cross.</source>
        <translation>已拒绝：线段会相交。</translation>
    </message>
    <message>
        <source>Refused: outside its area.</source>
        <translation>已拒绝：超出所属区域。</translation>
    </message>
    <message>
        <source>Refused: the place is taken.</source>
        <translation>已拒绝：该处已被占用。</translation>
    </message>
    <message>
        <source>Right click or Enter finishes.</source>
        <translation>单击右键或按回车键完成绘制。</translation>
    </message>
    <message>
        <source>Left click adds a point. Still needed: %1.</source>
        <translation>单击左键添加点，还需：%1。</translation>
    </message>
    <message>
        <source>Still needed: %1. Backspace takes one back.</source>
        <translation>还需：%1。退格键撤回一点。</translation>
    </message>
    <message>
        <source>Drag corners to correct, with Ctrl the figure.</source>
        <translation>拖动角点可修正，按住 Ctrl 移动整个图形。</translation>
    </message>
    <message>
        <source>Refused: a figure inside would be outside.</source>
        <translation>已拒绝：内部的图形会落在外面。</translation>
    </message>
    <message>
        <source>Refused: it needs all its corners.</source>
        <translation>已拒绝：所有角点都需要。</translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
</context>
<context>
    <name>EntryTransfer</name>
    <message>
        <source>There is no entry to copy.</source>
        <translation>没有可复制的条目。</translation>
    </message>
    <message>
        <source>Its figures are not finished yet.</source>
        <translation>其图形尚未绘制完成。</translation>
    </message>
    <message>
        <source>Nothing can be added here.</source>
        <translation>此处不能添加任何内容。</translation>
    </message>
    <message>
        <source>Nothing was copied.</source>
        <translation>没有复制任何内容。</translation>
    </message>
    <message>
        <source>What was copied cannot be read.</source>
        <translation>复制的内容无法读取。</translation>
    </message>
    <message>
        <source>What was copied belongs to another section.</source>
        <translation>复制的内容属于另一个分区。</translation>
    </message>
    <message>
        <source>A figure is being drawn.</source>
        <translation>正在绘制图形。</translation>
    </message>
    <message>
        <source>There are as many entries as there may be.</source>
        <translation>条目数已达上限。</translation>
    </message>
    <message>
        <source>The entry is too large to be copied.</source>
        <translation>条目过大，无法复制。</translation>
    </message>
</context>
<context>
    <name>FightCalibrateScene</name>
    <message>
        <source>Calibrate area</source>
        <translation>标定区域</translation>
    </message>
    <message>
        <source>Calibrate rect</source>
        <translation>标定矩形</translation>
    </message>
</context>
<context>
    <name>FightCalibrateTemplate</name>
    <message>
        <source>Fight configuration</source>
        <translation>斗殴检测配置</translation>
    </message>
    <message>
        <source>Calibrate area</source>
        <translation>标定区域</translation>
    </message>
    <message>
        <source>Calibrate rect</source>
        <translation>标定矩形</translation>
    </message>
</context>
<context>
    <name>GlobalScene</name>
    <message>
        <source>Global configuration</source>
        <translation>全局配置</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesCtrl</name>
    <message>
        <source>Channel information</source>
        <translation>通道信息</translation>
    </message>
    <message>
        <source>Channel Code:</source>
        <translation>通道编码：</translation>
    </message>
    <message>
        <source>Channel Name:</source>
        <translation>通道名称：</translation>
    </message>
    <message>
        <source>Rule information</source>
        <translation>规则信息</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesUI::CIntelligentRulesCtrl</name>
    <message>
        <source>The current operation may affect the already running task. Please confirm whether to modify it?</source>
        <translation>当前操作可能会影响正在运行的任务，请确认是否修改？</translation>
    </message>
    <message>
        <source>Do you want to exit the current configuration?</source>
        <translation>是否退出当前配置？</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Nothing was saved. %1</source>
        <translation>未保存任何内容。%1</translation>
    </message>
    <message>
        <source>The documents are too long.</source>
        <translation>文档过长。</translation>
    </message>
    <message>
        <source>Undo: %1 (Ctrl+Z)</source>
        <translation>撤销：%1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo: %1 (Ctrl+Y)</source>
        <translation>重做：%1 (Ctrl+Y)</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Backspace: take the last point back</source>
        <translation>退格键：撤回最后一点</translation>
    </message>
    <message>
        <source>Enter: finish the figure, press the right button at the cross-hair, or let go</source>
        <translation>回车键：完成图形，在十字光标处单击右键，或放开</translation>
    </message>
    <message>
        <source>Escape: take all points back, then leave the drawing</source>
        <translation>Esc：撤回所有点，再按退出绘制</translation>
    </message>
    <message>
        <source>Ctrl+Z: undo</source>
        <translation>Ctrl+Z：撤销</translation>
    </message>
    <message>
        <source>Ctrl+Y, Ctrl+Shift+Z: redo</source>
        <translation>Ctrl+Y、Ctrl+Shift+Z：重做</translation>
    </message>
    <message>
        <source>Arrows: move what was taken last, else a cross-hair; with Shift ten times as far</source>
        <translation>方向键：移动上次选取的部分，否则移动十字光标；按住 Shift 移动十倍距离</translation>
    </message>
    <message>
        <source>Space: press at the cross-hair, take or let go of a handle</source>
        <translation>空格：在十字光标处点击，抓住或放开控制点</translation>
    </message>
    <message>
        <source>Delete, or Shift and a press: remove a corner</source>
        <translation>Delete，或按住 Shift 点击：删除角点</translation>
    </message>
    <message>
        <source>Ctrl+C, Ctrl+V: copy the entry, paste a copied one</source>
        <translation>Ctrl+C、Ctrl+V：复制条目，粘贴已复制的条目</translation>
    </message>
    <message>
        <source>Ctrl+D: duplicate the entry</source>
        <translation>Ctrl+D：复制一份条目</translation>
    </message>
    <message>
        <source>Read-only: nothing can be changed here.</source>
        <translation>只读：此处无法更改任何内容。</translation>
    </message>
    <message>
        <source>Ctrl and a press: take the whole figure</source>
        <translation>按住 Ctrl 点击：抓住整个图形</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Shift+F10, Menu: what can be done with the entry whose button has the focus</source>
        <translation>Shift+F10、菜单键：对焦点所在按钮的条目可执行的操作</translation>
    </message>
    <message>
        <source>Up, Down: one more or less in a field for whole numbers</source>
        <translation>上、下方向键：在整数框中加一或减一</translation>
    </message>
    <message>
        <source>Space, Enter on a title: fold and unfold the section</source>
        <translation>在标题上按空格键、回车键：折叠或展开该分区</translation>
    </message>
    <message>
        <source>Checks everything and hands it to the device</source>
        <translation>检查全部内容并提交给设备</translation>
    </message>
    <message>
        <source>Leaves without saving</source>
        <translation>不保存并离开</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesUI::CIntelligentRulesWidget</name>
    <message>
        <source>IntelligentRules</source>
        <translation>智能规则</translation>
    </message>
    <message>
        <source>IntelligentRulesDetail</source>
        <translation>通道智能规则配置</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesUI::EditCommands</name>
    <message>
        <source>Paste %1</source>
        <translation>粘贴%1</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>复制一份%1</translation>
    </message>
    <message>
        <source>Nothing was added: there would be too much to be edited.</source>
        <translation>未添加任何内容：内容过多，无法编辑。</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesUI::EditHistory</name>
    <message>
        <source>Draw %1</source>
        <translation>绘制%1</translation>
    </message>
    <message>
        <source>Leave drawing</source>
        <translation>退出绘制</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesUI::StepTitle</name>
    <message>
        <source>Point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>添加%1</translation>
    </message>
    <message>
        <source>Redraw %1</source>
        <translation>重绘%1</translation>
    </message>
    <message>
        <source>Correct %1</source>
        <translation>修正%1</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>删除%1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>重命名%1</translation>
    </message>
    <message>
        <source>Switch %1</source>
        <translation>切换%1</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesUI::EntryMenu</name>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>There is no row for a name here.</source>
        <translation>此处没有名称行。</translation>
    </message>
    <message>
        <source>Redraw</source>
        <translation>重绘</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>复制一份</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesUI::SaveCheck</name>
    <message>
        <source>Duplicate rule name exists</source>
        <translation>存在重复的规则名称</translation>
    </message>
    <message>
        <source>Please select at least one rule</source>
        <translation>请至少选择一条规则</translation>
    </message>
</context>
<context>
    <name>Json</name>
    <message>
        <source>The document is empty.</source>
        <translation>文档为空。</translation>
    </message>
    <message>
        <source>The document root must not be followed by other values.</source>
        <translation>文档的根值之后不能再有其他值。</translation>
    </message>
    <message>
        <source>Missing a name for object member.</source>
        <translation>对象成员缺少名称。</translation>
    </message>
    <message>
        <source>Missing a colon after a name of object member.</source>
        <translation>对象成员的名称后缺少冒号。</translation>
    </message>
    <message>
        <source>Missing a comma or &apos;}&apos; after an object member.</source>
        <translation>对象成员后缺少逗号或“}”。</translation>
    </message>
    <message>
        <source>Missing a comma or &apos;]&apos; after an array element.</source>
        <translation>数组元素后缺少逗号或“]”。</translation>
    </message>
    <message>
        <source>Incorrect hex digit after \u escape in string.</source>
        <translation>字符串中 \u 之后的十六进制数字不正确。</translation>
    </message>
    <message>
        <source>The surrogate pair in string is invalid.</source>
        <translation>字符串中的代理对无效。</translation>
    </message>
    <message>
        <source>Invalid escape character in string.</source>
        <translation>字符串中的转义字符无效。</translation>
    </message>
    <message>
        <source>Missing a closing quotation mark in string.</source>
        <translation>字符串缺少右引号。</translation>
    </message>
    <message>
        <source>Miss fraction part in number.</source>
        <translation>数字缺少小数部分。</translation>
    </message>
    <message>
        <source>Miss exponent in number.</source>
        <translation>数字缺少指数部分。</translation>
    </message>
    <message>
        <source>Invalid value.</source>
        <translation>值无效。</translation>
    </message>
    <message>
        <source>The document is nested too deeply.</source>
        <translation>文档嵌套过深。</translation>
    </message>
    <message>
        <source>The number is too large.</source>
        <translation>数字过大。</translation>
    </message>
    <message>
        <source>The text holds half of a surrogate pair.</source>
        <translation>文本含有半个代理对。</translation>
    </message>
    <message>
        <source>The text is too long.</source>
        <translation>文本过长。</translation>
    </message>
    <message>
        <source>The text is not valid UTF-8.</source>
        <translation>文本不是有效的 UTF-8。</translation>
    </message>
    <message>
        <source>The text goes on after a NUL.</source>
        <translation>NUL 之后仍有文本。</translation>
    </message>
</context>
<context>
    <name>KQMessageBox</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
</context>
<context>
    <name>LanesScene</name>
    <message>
        <source>Lane</source>
        <translation>车道</translation>
    </message>
    <message>
        <source>Lane number</source>
        <translation>车道号</translation>
    </message>
    <message>
        <source>Left lane line</source>
        <translation>左车道线</translation>
    </message>
    <message>
        <source>Right lane line</source>
        <translation>右车道线</translation>
    </message>
</context>
<context>
    <name>LanesTemplate</name>
    <message>
        <source>Lanes configuration</source>
        <translation>车道配置</translation>
    </message>
    <message>
        <source>lanes</source>
        <translation>车道</translation>
    </message>
    <message>
        <source>Lanes num</source>
        <translation>车道号</translation>
    </message>
    <message>
        <source>White solid</source>
        <translation>白色实线</translation>
    </message>
    <message>
        <source>White dotted</source>
        <translation>白色虚线</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄线</translation>
    </message>
    <message>
        <source>left line</source>
        <translation>左侧线</translation>
    </message>
    <message>
        <source>right line</source>
        <translation>右侧线</translation>
    </message>
</context>
<context>
    <name>Misfit</name>
    <message>
        <source>The configuration has %1 here, which this row cannot show. It is saved as it is until the row is edited.</source>
        <translation>配置中此处为 %1，本行无法显示。在编辑本行之前，将按原样保存。</translation>
    </message>
    <message>
        <source>The configuration has %1 here, which this row cannot show. It is not saved as it is.</source>
        <translation>配置中此处为 %1，本行无法显示。它不会按原样保存。</translation>
    </message>
</context>
<context>
    <name>NumberTip</name>
    <message>
        <source>Whole numbers</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>至少 %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>至多 %1</translation>
    </message>
    <message>
        <source>unit: %1</source>
        <translation>单位：%1</translation>
    </message>
    <message>
        <source>What was typed is not taken here. %1</source>
        <translation>此处不接受该输入。%1</translation>
    </message>
</context>
<context>
    <name>PictureSource</name>
    <message>
        <source>The picture&apos;s size, %1 x %2, is out of range.</source>
        <translation>图像尺寸 %1 x %2 超出范围。</translation>
    </message>
</context>
<context>
    <name>PolygonDraw</name>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
</context>
<context>
    <name>QRtspVideoWnd</name>
    <message>
        <source>No signal</source>
        <translation>无信号</translation>
    </message>
    <message>
        <source>Last picture: %1</source>
        <translation>最后画面：%1</translation>
    </message>
    <message>
        <source>Try again now</source>
        <translation>立即重试</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>无画面</translation>
    </message>
    <message>
        <source>Connecting ...</source>
        <translation>正在连接……</translation>
    </message>
    <message>
        <source>The picture is held still</source>
        <translation>画面已冻结</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>已结束</translation>
    </message>
    <message>
        <source>Save snapshot</source>
        <translation>保存快照</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.bmp)</source>
        <translation>图片 (*.png *.jpg *.bmp)</translation>
    </message>
    <message>
        <source>The picture cannot be saved: %1</source>
        <translation>无法保存图片：%1</translation>
    </message>
</context>
<context>
    <name>RowEdit</name>
    <message>
        <source>The text is too long to be edited here.</source>
        <translation>文本过长，无法在此编辑。</translation>
    </message>
</context>
<context>
    <name>RuleData</name>
    <message>
        <source>Rule</source>
        <translation>规则</translation>
    </message>
    <message>
        <source>Please add %1 %2.</source>
        <translation>请添加%1个%2。</translation>
    </message>
    <message>
        <source>Please add %1-%2 %3.</source>
        <translation>请添加%1-%2个%3。</translation>
    </message>
    <message>
        <source>%1:%2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The minimum value cannot be empty.</source>
        <translation>最小值不能为空。</translation>
    </message>
    <message>
        <source>The maximum value cannot be empty.</source>
        <translation>最大值不能为空。</translation>
    </message>
    <message>
        <source>Please finish drawing %1.</source>
        <translation>请完成%1的绘制。</translation>
    </message>
    <message>
        <source>Please draw %1 %2.</source>
        <translation>请绘制%1个%2。</translation>
    </message>
    <message>
        <source>Please draw %1-%2 %3.</source>
        <translation>请绘制%1-%2个%3。</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>大于</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>小于</translation>
    </message>
    <message>
        <source>equal</source>
        <translation>等于</translation>
    </message>
    <message>
        <source>greater than or equal</source>
        <translation>大于等于</translation>
    </message>
    <message>
        <source>less than or equal</source>
        <translation>小于等于</translation>
    </message>
    <message>
        <source>%1 must be %2 to %3</source>
        <translation>%1必须%2%3</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>Lanes</source>
        <translation>车道</translation>
    </message>
    <message>
        <source>Only %1 is saved: the template has room for one.</source>
        <translation>仅保存%1：模板只能容纳一个。</translation>
    </message>
</context>
<context>
    <name>RuleParser</name>
    <message>
        <source>The template is not valid JSON.</source>
        <translation>模板不是有效的 JSON。</translation>
    </message>
    <message>
        <source>The template has no &quot;configDescription&quot;.</source>
        <translation>模板中没有“configDescription”。</translation>
    </message>
    <message>
        <source>The configuration is not valid JSON.</source>
        <translation>配置不是有效的 JSON。</translation>
    </message>
    <message>
        <source>The template has no &quot;configTemplate&quot; to write into.</source>
        <translation>模板中缺少用于写入的“configTemplate”。</translation>
    </message>
    <message>
        <source>The configuration is too long.</source>
        <translation>配置过长。</translation>
    </message>
    <message>
        <source>The template has no place &quot;%1&quot; for what is set under &quot;%2&quot;.</source>
        <translation>模板中没有位置“%1”来写入“%2”的设置。</translation>
    </message>
    <message>
        <source>The template has more than %1 attributes or %2 choices in one section.</source>
        <translation>模板的一个分区中的属性超过 %1 个或选项超过 %2 个。</translation>
    </message>
    <message>
        <source>The configuration has %1 entries under &quot;%2&quot;; at most %3 can be edited.</source>
        <translation>配置在“%2”下有 %1 个条目；最多可编辑 %3 个。</translation>
    </message>
    <message>
        <source>The attributes read too much of what the configuration has under &quot;%1&quot;.</source>
        <translation>属性从配置的“%1”下读取的内容过多。</translation>
    </message>
</context>
<context>
    <name>RuleScene</name>
    <message>
        <source>Add rule</source>
        <translation>添加规则</translation>
    </message>
    <message>
        <source>Rule configuration</source>
        <translation>规则配置</translation>
    </message>
    <message>
        <source>Rule name</source>
        <translation>规则名称</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>At least one Rule!</source>
        <translation>至少保留一条规则！</translation>
    </message>
</context>
<context>
    <name>SampleStreet</name>
    <message>
        <source>Sample camera</source>
        <translation>示例摄像机</translation>
    </message>
</context>
<context>
    <name>SaveNotices</name>
    <message>
        <source>%1 is not saved as it was read.</source>
        <translation>%1不会按读取时的内容保存。</translation>
    </message>
    <message>
        <source>%1 is not saved: no attribute names it.</source>
        <translation>%1不会保存：没有属性使用它。</translation>
    </message>
    <message>
        <source>%1 cannot be shown; it is saved as it was read until it is edited.</source>
        <translation>%1无法显示；在编辑之前将按读取时的内容保存。</translation>
    </message>
    <message>
        <source>%1 is not saved: the template has no place &quot;%2&quot; for it.</source>
        <translation>%1不会保存：模板中没有位置“%2”。</translation>
    </message>
    <message>
        <source>%1 is not saved: it has no type that a row can have.</source>
        <translation>%1不会保存：其类型不能用于行。</translation>
    </message>
    <message>
        <source>%1 is not saved: the template has something else in its place &quot;%2&quot;.</source>
        <translation>%1不会保存：模板中位置“%2”是其他内容。</translation>
    </message>
    <message>
        <source>%1 is not saved of areas that are written as lists of points.</source>
        <translation>以点列表写入的区域不会保存%1。</translation>
    </message>
    <message>
        <source>What is no entry under %1 is not saved.</source>
        <translation>%1下不是条目的内容不会保存。</translation>
    </message>
    <message>
        <source>%1 was left out of the copy: there is no such attribute here.</source>
        <translation>副本中省略了%1：此处没有这样的属性。</translation>
    </message>
    <message>
        <source>%1 has its default in the copy: the value is not possible here.</source>
        <translation>%1在副本中为默认值：此处不允许该值。</translation>
    </message>
    <message>
        <source>%1 were left out of the copy: there are no such attributes here.</source>
        <translation>副本中省略了%1：此处没有这些属性。</translation>
    </message>
</context>
<context>
    <name>SceneWidgets</name>
    <message>
        <source>Redraw</source>
        <translation>重绘</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Redraw %1</source>
        <translation>重绘%1</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>删除%1</translation>
    </message>
</context>
<context>
    <name>StatisticsDirection</name>
    <message>
        <source>Detection direction</source>
        <translation>检测方向</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>从左到右</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>从右到左</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>&quot;%1&quot; is not a picture that can be read.</source>
        <translation>“%1”不是可读取的图片。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a picture of a kind that is not supported: %2.</source>
        <translation>“%1”的图片类型不受支持：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: %2.</source>
        <translation>“%1”已损坏：%2。</translation>
    </message>
</context>
<context>
    <name>StreamDecoder</name>
    <message>
        <source>What comes cannot be decoded.</source>
        <translation>收到的内容无法解码。</translation>
    </message>
    <message>
        <source>The coding of the video is not known.</source>
        <translation>视频编码未知。</translation>
    </message>
    <message>
        <source>Video coded as %1 cannot be decoded.</source>
        <translation>无法解码 %1 编码的视频。</translation>
    </message>
    <message>
        <source>There is no picture in it that can be decoded.</source>
        <translation>其中没有可解码的画面。</translation>
    </message>
    <message>
        <source>Its pictures cannot be converted.</source>
        <translation>其画面无法转换。</translation>
    </message>
</context>
<context>
    <name>StreamErrors</name>
    <message>
        <source>The connection is refused.</source>
        <translation>连接被拒绝。</translation>
    </message>
    <message>
        <source>The host cannot be reached.</source>
        <translation>无法访问主机。</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>无法访问网络。</translation>
    </message>
    <message>
        <source>The connection cannot be made, or broke.</source>
        <translation>连接无法建立或已中断。</translation>
    </message>
    <message>
        <source>The connection was lost.</source>
        <translation>连接已丢失。</translation>
    </message>
    <message>
        <source>There is no answer, or nothing comes any more.</source>
        <translation>没有应答，或不再有数据。</translation>
    </message>
    <message>
        <source>The stream was ended by the other side.</source>
        <translation>对方已结束视频流。</translation>
    </message>
    <message>
        <source>The user name or the password is not accepted.</source>
        <translation>用户名或密码不被接受。</translation>
    </message>
    <message>
        <source>Access is forbidden.</source>
        <translation>禁止访问。</translation>
    </message>
    <message>
        <source>The camera sends its viewers to another server. It is not followed: user name and password would go along.</source>
        <translation>摄像机将观看者转到另一台服务器。未跟随：用户名和密码会一并发送。</translation>
    </message>
    <message>
        <source>There is no stream of this name.</source>
        <translation>没有该名称的视频流。</translation>
    </message>
    <message>
        <source>The request is refused.</source>
        <translation>请求被拒绝。</translation>
    </message>
    <message>
        <source>The server has a fault of its own.</source>
        <translation>服务器自身出错。</translation>
    </message>
    <message>
        <source>Neither TCP nor UDP is accepted.</source>
        <translation>TCP 和 UDP 均不被接受。</translation>
    </message>
    <message>
        <source>There is no video in it.</source>
        <translation>其中没有视频。</translation>
    </message>
    <message>
        <source>It is no video that can be read.</source>
        <translation>这不是可读取的视频。</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>没有此文件。</translation>
    </message>
    <message>
        <source>It may not be read.</source>
        <translation>不允许读取。</translation>
    </message>
    <message>
        <source>The address, or the login in it, is too long.</source>
        <translation>地址或其中的登录信息过长。</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>这是一个文件夹。</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>It cannot be played: %1.</source>
        <translation>无法播放：%1。</translation>
    </message>
</context>
<context>
    <name>StreamInput</name>
    <message>
        <source>A web server answers there, not a camera&apos;s RTSP.</source>
        <translation>应答的是网页服务器，而不是摄像机的 RTSP。</translation>
    </message>
</context>
<context>
    <name>StreamLibrary</name>
    <message>
        <source>The library that plays streams and video files cannot be loaded.</source>
        <translation>无法加载播放视频流和视频文件的库。</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::ChannelSources</name>
    <message>
        <source>The address is empty.</source>
        <translation>地址为空。</translation>
    </message>
    <message>
        <source>Only rtsp and rtsps addresses and files can be played, not %1.</source>
        <translation>只能播放 rtsp、rtsps 地址和文件，不能播放 %1。</translation>
    </message>
    <message>
        <source>Only rtsp and rtsps addresses of a client can be played.</source>
        <translation>只能播放客户端的 rtsp 和 rtsps 地址。</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::PictureStrip</name>
    <message>
        <source>Codec: %1</source>
        <translation>编码：%1</translation>
    </message>
    <message>
        <source>Size: %1 x %2</source>
        <translation>尺寸：%1 x %2</translation>
    </message>
    <message>
        <source>Pictures a second: %1</source>
        <translation>每秒帧数：%1</translation>
    </message>
    <message>
        <source>Dropped: %1</source>
        <translation>丢弃：%1</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>冻结</translation>
    </message>
    <message>
        <source>Hold the picture still</source>
        <translation>冻结画面</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>快照</translation>
    </message>
    <message>
        <source>Save the picture as a file</source>
        <translation>将画面保存为文件</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Show facts about the picture</source>
        <translation>显示画面信息</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::StreamSource</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>Trying again ...</source>
        <translation>正在重试……</translation>
    </message>
    <message>
        <source>It is tried again only when you ask for it.</source>
        <translation>仅在您要求时才会重试。</translation>
    </message>
    <message>
        <source>Next try at %1</source>
        <translation>下次重试：%1</translation>
    </message>
</context>
<context>
    <name>VehicleLaneDraw</name>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>the old file stands</source>
        <translation>保留原文件</translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>未写入任何内容</translation>
    </message>
    <message>
        <source>%1: it is no regular file, and is not replaced</source>
        <translation>%1：不是普通文件，不会被替换</translation>
    </message>
</context>
<context>
    <name>ControlTabel</name>
    <message>
        <source>%1, minimum</source>
        <translation>%1，最小值</translation>
    </message>
    <message>
        <source>%1, maximum</source>
        <translation>%1，最大值</translation>
    </message>
    <message>
        <source>On or off</source>
        <translation>打开或关闭</translation>
    </message>
    <message>
        <source>Up to %1 characters</source>
        <translation>最多 %1 个字符</translation>
    </message>
</context>
<context>
    <name>DrawItemButton</name>
    <message>
        <source>Enable %1</source>
        <translation>启用%1</translation>
    </message>
</context>
<context>
    <name>PictureWords</name>
    <message>
        <source>Nothing is drawn.</source>
        <translation>没有绘制任何图形。</translation>
    </message>
    <message>
        <source>Cross-hair at %1, %2.</source>
        <translation>十字光标位于 %1，%2。</translation>
    </message>
    <message>
        <source>%1, points: %2</source>
        <translation>%1，点数：%2</translation>
    </message>
    <message>
        <source>%1, being drawn, points: %2</source>
        <translation>%1，正在绘制，点数：%2</translation>
    </message>
    <message>
        <source>; </source>
        <comment>between figures</comment>
        <translation>；</translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>all figures</comment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1%2</translation>
    </message>
</context>
<context>
    <name>SceneTitleBar</name>
    <message>
        <source>Folds and unfolds the section</source>
        <translation>折叠或展开该分区</translation>
    </message>
</context>
</TS>
