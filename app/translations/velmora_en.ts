<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Velmora</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln file</numerusform>
            <numerusform>%Ln files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The edits of %Ln file(s) will be lost.</source>
        <translation>
            <numerusform>The edits of %Ln file will be lost.</numerusform>
            <numerusform>The edits of %Ln files will be lost.</numerusform>
        </translation>
    </message>
</context>
</TS>
