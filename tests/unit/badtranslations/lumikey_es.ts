<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>AnotherProgram</name>
    <message>
        <source>English</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>Backlight Status</source>
        <translation>Retroiluminación</translation>
    </message>
</context>
</TS>
