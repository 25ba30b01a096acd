<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="xx">
<context>
    <name>Localizable</name>
    <message>
        <source>tab_general</source>
        <translation>xx-general</translation>
    </message>
    <message>
        <source>alert_browser_changed_message %@ %@</source>
        <translation>%2$@ before %1$@</translation>
    </message>
</context>
</TS>
