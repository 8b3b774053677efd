<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ArrivalsList</name>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n ready</numerusform>
            <numerusform>%n ready</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WorkspaceNavigation</name>
    <message numerus="yes">
        <source>%n ready</source>
        <translation>
            <numerusform>%n ready</numerusform>
            <numerusform>%n ready</numerusform>
        </translation>
    </message>
</context>
</TS>
