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
        <translation>垂直线</translation>
    </message>
    <message>
        <source>horizontalLine</source>
        <translation>水平线</translation>
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
        <translation>无法添加：线段会相交。</translation>
    </message>
    <message>
        <source>Refused: outside its area.</source>
        <translation>无法添加：超出所属区域。</translation>
    </message>
    <message>
        <source>Refused: the place is taken.</source>
        <translation>无法添加：该处已被占用。</translation>
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
        <source>The configuration is too long.</source>
        <translation>配置过长。</translation>
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
        <source>Enter: finish the figure</source>
        <translation>回车键：完成图形</translation>
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
        <source>Ctrl and a press: take the whole figure</source>
        <translation>按住 Ctrl 点击：抓住整个图形</translation>
        <source>Ctrl+C, Ctrl+V: copy the entry, paste a copied one</source>
        <translation>Ctrl+C、Ctrl+V：复制条目，粘贴已复制的条目</translation>
    </message>
    <message>
        <source>Ctrl+D: duplicate the entry</source>
        <translation>Ctrl+D：复制一份条目</translation>
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
        <source>Leave drawing</source>
        <translation>退出绘制</translation>
    </message>
    <message>
        <source>Correct %1</source>
        <translation>修正 %1</translation>
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
        <translation>模板中缺少用于写入的&quot;configTemplate&quot;。</translation>
    </message>
    <message>
        <source>The template has no place &quot;%1&quot; for what is set under &quot;%2&quot;.</source>
        <translation>模板中没有位置&quot;%1&quot;来写入&quot;%2&quot;的设置。</translation>
    </message>
    <message>
        <source>The template has more than %1 attributes or %2 choices in one section.</source>
        <translation>模板的一个部分中的属性超过 %1 个或选项超过 %2 个。</translation>
    </message>
    <message>
        <source>The configuration has %1 entries under &quot;%2&quot;; at most %3 can be edited.</source>
        <translation>配置在&quot;%2&quot;下有 %1 个条目；最多可编辑 %3 个。</translation>
    </message>
    <message>
        <source>The attributes read too much of what the configuration has under &quot;%1&quot;.</source>
        <translation>属性从配置的&quot;%1&quot;下读取的内容过多。</translation>
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
        <translation>%1不会保存：模板中没有位置&quot;%2&quot;。</translation>
    </message>
    <message>
        <source>%1 is not saved: it has no type that a row can have.</source>
        <translation>%1不会保存：其类型不能用于行。</translation>
    </message>
    <message>
        <source>%1 is not saved: the template has something else in its place &quot;%2&quot;.</source>
        <translation>%1不会保存：模板中位置&quot;%2&quot;是其他内容。</translation>
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
        <translation>重新绘制%1</translation>
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
</TS>
