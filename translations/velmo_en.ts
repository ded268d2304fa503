<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>VelmoProjectScenesWidget</name>
    <message>
        <source>Tooltip clone scene</source>
        <translation>Clone the selected scene</translation>
    </message>
    <message>
        <source>Tooltip delete scene</source>
        <translation>Delete the selected scene</translation>
    </message>
</context>
<context>
    <name>VelmoSceneItem</name>
    <message>
        <source>Scene version warning tooltip.</source>
        <translation>A newer release has saved this scene. Parts of it may be missing when it is opened here.</translation>
    </message>
</context>
<context>
    <name>VelmoScenesTable</name>
    <message>
        <source>Scene not compatible for merge tooltip.</source>
        <translation>This scene cannot be used: its file is damaged, or it does not go together with the others.</translation>
    </message>
</context>
<context>
    <name>oVIXDragDropTags</name>
    <message>
        <source>Delete tag or category %1 question message.</source>
        <translation>Do you want to delete &lt;b&gt;%1&lt;/b&gt;?&lt;br&gt;Everything that has it loses it.</translation>
    </message>
</context>
<context>
    <name>oVIXPieChartWidget</name>
    <message>
        <source>Lock Unlock variation pie chart tooltip</source>
        <translation>Lock or unlock this share: a locked share keeps its size when others change.</translation>
    </message>
</context>
</TS>
