<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="de">
<context>
    <name></name>
    <message id="629s">
        <source></source>
        <translation>wiederholen</translation>
    </message>
</context>
</TS>
