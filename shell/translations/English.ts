<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>StepName</name>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation>
            <numerusform>Change %n key in several profiles</numerusform>
            <numerusform>Change %n keys in several profiles</numerusform>
        </translation>
    </message>
</context>
</TS>
