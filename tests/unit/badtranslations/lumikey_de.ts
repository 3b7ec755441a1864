<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Backlight Status</source>
        <translation>Beleuchtung</translation>
    </message>
    <message>
        <source>Installed: %1</source>
        <translation>Installiert</translation>
    </message>
    <message>
        <source>Latest: %1</source>
        <translation>Neueste: %2</translation>
    </message>
    <message>
        <source>You are running the latest version, there is no update.
</source>
        <translation>Es gibt kein Update.</translation>
    </message>
</context>
</TS>
