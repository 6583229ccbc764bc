<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="de">
<context>
    <name></name>
    <message id="1s">
        <source>Drucken</source>
        <extracomment>Result sheet: button</extracomment>
        <translation>Drucken</translation>
    </message>
    <message id="8s">
        <source>Training speichern</source>
        <extracomment>Title of the yes-or-no box when a training is left</extracomment>
        <translation>Training speichern</translation>
    </message>
    <message id="13s">
        <source>,,</source>
        <extracomment>Octave mark: subcontra octave. Stands before the tone name in tone names, behind it on the piano keys</extracomment>
        <translation>,,</translation>
    </message>
    <message id="14s">
        <source>-1</source>
        <extracomment>Octave mark: small octave; never shown, tells the keyboard to print the plain lower-case name</extracomment>
        <translation>-1</translation>
    </message>
    <message id="15s">
        <source>'</source>
        <extracomment>Octave mark: one-line octave. Stands before the tone name in tone names, behind it on the piano keys</extracomment>
        <translation>'</translation>
    </message>
    <message id="16s">
        <source>''</source>
        <extracomment>Octave mark: two-line octave. Stands before the tone name in tone names, behind it on the piano keys</extracomment>
        <translation>''</translation>
    </message>
    <message id="17s">
        <source>'''</source>
        <extracomment>Octave mark: three-line octave. Stands before the tone name in tone names, behind it on the piano keys</extracomment>
        <translation>'''</translation>
    </message>
    <message id="18s">
        <source>''''</source>
        <extracomment>Octave mark: four-line octave. Stands before the tone name in tone names, behind it on the piano keys</extracomment>
        <translation>''''</translation>
    </message>
    <message id="20s">
        <source>,</source>
        <extracomment>Octave mark: contra octave. Stands before the tone name in tone names, behind it on the piano keys</extracomment>
        <translation>,</translation>
    </message>
    <message id="21s">
        <source>-2</source>
        <extracomment>Octave mark: great octave; never shown, tells the keyboard to print the upper-case name</extracomment>
        <translation>-2</translation>
    </message>
    <message id="46s">
        <source>Oktave</source>
        <extracomment>Write exercises: warning that a tone is right but lies in another octave; exclamation marks follow</extracomment>
        <translation>Oktave</translation>
    </message>
    <message id="68s">
        <source>a</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 18</extracomment>
        <translation>a</translation>
    </message>
    <message id="69s">
        <source>A</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 18</extracomment>
        <translation>A</translation>
    </message>
    <message id="70s">
        <source>ais</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 25</extracomment>
        <translation>ais</translation>
    </message>
    <message id="71s">
        <source>Ais</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 25</extracomment>
        <translation>Ais</translation>
    </message>
    <message id="72s">
        <source>aisis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 32</extracomment>
        <translation>aisis</translation>
    </message>
    <message id="74s">
        <source>as</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 11</extracomment>
        <translation>as</translation>
    </message>
    <message id="75s">
        <source>As</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 11</extracomment>
        <translation>As</translation>
    </message>
    <message id="76s">
        <source>ases</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 4</extracomment>
        <translation>ases</translation>
    </message>
    <message id="82s">
        <source>abwärts</source>
        <extracomment>Direction behind an interval name: 'Major third downward'</extracomment>
        <translation>abwärts</translation>
    </message>
    <message id="83s">
        <source>abwärts</source>
        <extracomment>Result sheet: head of the column of falling intervals</extracomment>
        <translation>abwärts</translation>
    </message>
    <message id="109s">
        <source>Anwender</source>
        <extracomment>Result sheet: label of the user of the computer; a colon follows</extracomment>
        <translation>Anwender</translation>
    </message>
    <message id="129s">
        <source>nächste Aufgabe</source>
        <extracomment>Exercise window: button and notice for the next task; a number may follow</extracomment>
        <translation>nächste Aufgabe</translation>
    </message>
    <message id="131s">
        <source>aufwärts</source>
        <extracomment>Direction behind an interval name: 'Major third upward'</extracomment>
        <translation>aufwärts</translation>
    </message>
    <message id="132s">
        <source>aufwärts</source>
        <extracomment>Result sheet: head of the column of rising intervals</extracomment>
        <translation>aufwärts</translation>
    </message>
    <message id="136s">
        <source>Freies Üben</source>
        <extracomment>Settings: exercise level without saving or score</extracomment>
        <translation>Freies Üben</translation>
    </message>
    <message id="144s">
        <source>b</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 13</extracomment>
        <translation>b</translation>
    </message>
    <message id="145s">
        <source>B</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 13</extracomment>
        <translation>B</translation>
    </message>
    <message id="154s">
        <source>bestimmen</source>
        <extracomment>First window: kind of exercise (name the intervals heard or read)</extracomment>
        <translation>bestimmen</translation>
    </message>
    <message id="159s">
        <source>Bilde...</source>
        <extracomment>Build exercise: heading over the interval to form</extracomment>
        <translation>Bilde...</translation>
    </message>
    <message id="160s">
        <source>bilden</source>
        <extracomment>First window: kind of exercise (form a tone with the pitch slider)</extracomment>
        <translation>bilden</translation>
    </message>
    <message id="164s">
        <source>c</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 15</extracomment>
        <translation>c</translation>
    </message>
    <message id="165s">
        <source>C</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 15</extracomment>
        <translation>C</translation>
    </message>
    <message id="173s">
        <source>cis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 22</extracomment>
        <translation>cis</translation>
    </message>
    <message id="174s">
        <source>Cis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 22</extracomment>
        <translation>Cis</translation>
    </message>
    <message id="175s">
        <source>cisis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 29</extracomment>
        <translation>cisis</translation>
    </message>
    <message id="180s">
        <source>Ces</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 8</extracomment>
        <translation>Ces</translation>
    </message>
    <message id="181s">
        <source>ces</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 8</extracomment>
        <translation>ces</translation>
    </message>
    <message id="182s">
        <source>ceses</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 1</extracomment>
        <translation>ceses</translation>
    </message>
    <message id="183s">
        <source>d</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 17</extracomment>
        <translation>d</translation>
    </message>
    <message id="184s">
        <source>D</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 17</extracomment>
        <translation>D</translation>
    </message>
    <message id="185s">
        <source>dis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 24</extracomment>
        <translation>dis</translation>
    </message>
    <message id="186s">
        <source>Dis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 24</extracomment>
        <translation>Dis</translation>
    </message>
    <message id="187s">
        <source>disis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 31</extracomment>
        <translation>disis</translation>
    </message>
    <message id="189s">
        <source>Datum</source>
        <extracomment>Result sheet: label of the date; a colon follows</extracomment>
        <translation>Datum</translation>
    </message>
    <message id="190s">
        <source>des</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 10</extracomment>
        <translation>des</translation>
    </message>
    <message id="191s">
        <source>Des</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 10</extracomment>
        <translation>Des</translation>
    </message>
    <message id="192s">
        <source>deses</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 3</extracomment>
        <translation>deses</translation>
    </message>
    <message id="196s">
        <source>Der gespeicherte Stand kann nicht geladen werden:</source>
        <extracomment>Warning when a saved training cannot be restored; the name of the level follows behind a blank</extracomment>
        <translation>Der gespeicherte Stand kann nicht geladen werden:</translation>
    </message>
    <message id="211s">
        <source>e</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 19</extracomment>
        <translation>e</translation>
    </message>
    <message id="212s">
        <source>E</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 19</extracomment>
        <translation>E</translation>
    </message>
    <message id="213s">
        <source>eis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 26</extracomment>
        <translation>eis</translation>
    </message>
    <message id="214s">
        <source>Eis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 26</extracomment>
        <translation>Eis</translation>
    </message>
    <message id="215s">
        <source>eisis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 33</extracomment>
        <translation>eisis</translation>
    </message>
    <message id="218s">
        <source>es</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 12</extracomment>
        <translation>es</translation>
    </message>
    <message id="219s">
        <source>Es</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 12</extracomment>
        <translation>Es</translation>
    </message>
    <message id="220s">
        <source>eses</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 5</extracomment>
        <translation>eses</translation>
    </message>
    <message id="221s">
        <source>Gehörbildung</source>
        <extracomment>Kind of study in window titles</extracomment>
        <translation>Gehörbildung</translation>
    </message>
    <message id="223s">
        <source>ENDE</source>
        <extracomment>First window: button that ends the program</extracomment>
        <translation>ENDE</translation>
    </message>
    <message id="224s">
        <source>Musiklehre</source>
        <extracomment>Kind of study in window titles</extracomment>
        <translation>Musiklehre</translation>
    </message>
    <message id="226s">
        <source>f</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 14</extracomment>
        <translation>f</translation>
    </message>
    <message id="227s">
        <source>F</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 14</extracomment>
        <translation>F</translation>
    </message>
    <message id="228s">
        <source>fis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 21</extracomment>
        <translation>fis</translation>
    </message>
    <message id="229s">
        <source>Fis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 21</extracomment>
        <translation>Fis</translation>
    </message>
    <message id="230s">
        <source>fisis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 28</extracomment>
        <translation>fisis</translation>
    </message>
    <message id="232s">
        <source>Falsch</source>
        <extracomment>Heading of the count of wrong answers, and what an answer field says after a wrong answer</extracomment>
        <translation>Falsch</translation>
    </message>
    <message id="234s">
        <source>fes</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 7</extracomment>
        <translation>fes</translation>
    </message>
    <message id="235s">
        <source>Fes</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 7</extracomment>
        <translation>Fes</translation>
    </message>
    <message id="236s">
        <source>feses</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 0</extracomment>
        <translation>feses</translation>
    </message>
    <message id="244s">
        <source>G</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 16</extracomment>
        <translation>G</translation>
    </message>
    <message id="245s">
        <source>g</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 16</extracomment>
        <translation>g</translation>
    </message>
    <message id="251s">
        <source>gis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 23</extracomment>
        <translation>gis</translation>
    </message>
    <message id="252s">
        <source>Gis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 23</extracomment>
        <translation>Gis</translation>
    </message>
    <message id="253s">
        <source>gisis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 30</extracomment>
        <translation>gisis</translation>
    </message>
    <message id="260s">
        <source>g2</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>g2</translation>
    </message>
    <message id="261s">
        <source>g3</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>g3</translation>
    </message>
    <message id="262s">
        <source>g6</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>g6</translation>
    </message>
    <message id="263s">
        <source>g7</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>g7</translation>
    </message>
    <message id="267s">
        <source>ges</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 9</extracomment>
        <translation>ges</translation>
    </message>
    <message id="268s">
        <source>Ges</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 9</extracomment>
        <translation>Ges</translation>
    </message>
    <message id="269s">
        <source>geses</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 2</extracomment>
        <translation>geses</translation>
    </message>
    <message id="271s">
        <source>gebildete Tonhöhe</source>
        <extracomment>Build exercise: caption of the pitch the student formed</extracomment>
        <translation>gebildete Tonhöhe</translation>
    </message>
    <message id="275s">
        <source>Gesamt:</source>
        <extracomment>Result sheet: label of the total percentage, with its colon</extracomment>
        <translation>Gesamt:</translation>
    </message>
    <message id="281s">
        <source>große Sekunde</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>große Sekunde</translation>
    </message>
    <message id="282s">
        <source>große Septime</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>große Septime</translation>
    </message>
    <message id="283s">
        <source>große Sexte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>große Sexte</translation>
    </message>
    <message id="284s">
        <source>große Terz</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>große Terz</translation>
    </message>
    <message id="287s">
        <source>Übungsart</source>
        <extracomment>Start of the title of the first window: 'Exercise type: tonal intervals ...'</extracomment>
        <translation>Übungsart</translation>
    </message>
    <message id="291s">
        <source>tonale Intervalle (sukzessiv) bestimmen</source>
        <extracomment>Title of the exercise window, also behind the kind of study in the title of the settings</extracomment>
        <translation>tonale Intervalle (sukzessiv) bestimmen</translation>
    </message>
    <message id="292s">
        <source>tonale Intervalle sukzessiv bilden</source>
        <extracomment>Title of the exercise window, also behind the kind of study in the title of the settings</extracomment>
        <translation>tonale Intervalle sukzessiv bilden</translation>
    </message>
    <message id="293s">
        <source>Töne nachspielen</source>
        <extracomment>Title of the exercise window, also behind the kind of study in the title of the settings</extracomment>
        <translation>Töne nachspielen</translation>
    </message>
    <message id="297s">
        <source>Grundton</source>
        <extracomment>Exercise window: what the first tone is ('Tone: keynote')</extracomment>
        <translation>Grundton</translation>
    </message>
    <message id="300s">
        <source>Grundton-Kontrolle</source>
        <extracomment>Exercise window: button, plays the keynote chord</extracomment>
        <translation>Grundton-Kontrolle</translation>
    </message>
    <message id="303s">
        <source>H</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 20</extracomment>
        <translation>H</translation>
    </message>
    <message id="304s">
        <source>h</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 20</extracomment>
        <translation>h</translation>
    </message>
    <message id="305s">
        <source>His</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 27</extracomment>
        <translation>His</translation>
    </message>
    <message id="306s">
        <source>his</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 27</extracomment>
        <translation>his</translation>
    </message>
    <message id="307s">
        <source>hisis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 34</extracomment>
        <translation>hisis</translation>
    </message>
    <message id="316s">
        <source>heses</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 6</extracomment>
        <translation>heses</translation>
    </message>
    <message id="319s">
        <source>hoch</source>
        <extracomment>Settings: accuracy asked of the tone formed with the pitch slider</extracomment>
        <translation>hoch</translation>
    </message>
    <message id="341s">
        <source>Töne</source>
        <extracomment>Settings: whose instrument is being chosen (the tones of the row)</extracomment>
        <translation>Töne</translation>
    </message>
    <message id="345s">
        <source>Transposition</source>
        <extracomment>Settings: list of transpositions; a colon and the direction follow</extracomment>
        <translation>Transposition</translation>
    </message>
    <message id="349s">
        <source>k2</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>k2</translation>
    </message>
    <message id="350s">
        <source>k3</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>k3</translation>
    </message>
    <message id="351s">
        <source>k6</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>k6</translation>
    </message>
    <message id="352s">
        <source>k7</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>k7</translation>
    </message>
    <message id="358s">
        <source>kleine Sekunde</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>kleine Sekunde</translation>
    </message>
    <message id="359s">
        <source>kleine Septime</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>kleine Septime</translation>
    </message>
    <message id="360s">
        <source>kleine Sexte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>kleine Sexte</translation>
    </message>
    <message id="361s">
        <source>kleine Terz</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>kleine Terz</translation>
    </message>
    <message id="370s">
        <source>Kontrollwiedergabe</source>
        <extracomment>Build exercise: button, plays the student's tone and then the target</extracomment>
        <translation>Kontrollwiedergabe</translation>
    </message>
    <message id="394s">
        <source>min</source>
        <extracomment>Test: unit behind the minutes left</extracomment>
        <translation>min</translation>
    </message>
    <message id="400s">
        <source>mittel</source>
        <extracomment>Settings: accuracy asked of the tone formed with the pitch slider</extracomment>
        <translation>mittel</translation>
    </message>
    <message id="401s">
        <source>mitteltönig (Kirnberger)</source>
        <extracomment>Build exercise: tuning in force</extracomment>
        <translation>mitteltönig (Kirnberger)</translation>
    </message>
    <message id="413s">
        <source>abwärts</source>
        <extracomment>Settings: list of transpositions, direction down</extracomment>
        <translation>abwärts</translation>
    </message>
    <message id="416s">
        <source>Nun den dritten Ton nachbilden</source>
        <extracomment>Build exercise: what is heard now, two tones, the third is to be formed after them</extracomment>
        <translation>Nun den dritten Ton nachbilden</translation>
    </message>
    <message id="421s">
        <source>keine Transposition</source>
        <extracomment>Settings: list of transpositions, none</extracomment>
        <translation>keine Transposition</translation>
    </message>
    <message id="424s">
        <source>niedrig</source>
        <extracomment>Settings: accuracy asked of the tone formed with the pitch slider</extracomment>
        <translation>niedrig</translation>
    </message>
    <message id="426s">
        <source>Prüfung</source>
        <extracomment>Settings: list of the exams, a blank and a number from 1 to 5 follow</extracomment>
        <translation>Prüfung</translation>
    </message>
    <message id="432s">
        <source>OK</source>
        <extracomment>Button that accepts: first window, settings, and the answer of the build exercise</extracomment>
        <translation>OK</translation>
    </message>
    <message id="433s">
        <source>andere Lage</source>
        <extracomment>Second half of the first entry of the degree list ('Octave/...': the keynote in another octave); with an exclamation mark the warning that a played tone is right but lies in another octave</extracomment>
        <translation>andere Lage</translation>
    </message>
    <message id="437s">
        <source>Prime</source>
        <extracomment>Interval name without its quality, in the table of degree names</extracomment>
        <translation>Prime</translation>
    </message>
    <message id="438s">
        <source>Prüfung</source>
        <extracomment>Settings: exercise level, an exam</extracomment>
        <translation>Prüfung</translation>
    </message>
    <message id="439s">
        <source>Quarte</source>
        <extracomment>Interval name without its quality, in the table of degree names</extracomment>
        <translation>Quarte</translation>
    </message>
    <message id="446s">
        <source>Quinte</source>
        <extracomment>Interval name without its quality, in the table of degree names</extracomment>
        <translation>Quinte</translation>
    </message>
    <message id="449s">
        <source>Prime</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Prime</translation>
    </message>
    <message id="450s">
        <source>Oktave</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Oktave</translation>
    </message>
    <message id="451s">
        <source>Quarte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Quarte</translation>
    </message>
    <message id="452s">
        <source>Quinte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Quinte</translation>
    </message>
    <message id="453s">
        <source>r8</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>r8</translation>
    </message>
    <message id="454s">
        <source>r4</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>r4</translation>
    </message>
    <message id="455s">
        <source>r5</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>r5</translation>
    </message>
    <message id="456s">
        <source>r1</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>r1</translation>
    </message>
    <message id="458s">
        <source>rein (pythag.)</source>
        <extracomment>Build exercise: tuning in force</extracomment>
        <translation>rein (pythag.)</translation>
    </message>
    <message id="461s">
        <source>Restzeit:</source>
        <extracomment>Test: stands before the minutes left ('Time left: 3 min 20 s')</extracomment>
        <translation>Restzeit:</translation>
    </message>
    <message id="462s">
        <source>Restaufgaben</source>
        <extracomment>Test: tasks left; the number stands before or behind it with a blank</extracomment>
        <translation>Restaufgaben</translation>
    </message>
    <message id="468s">
        <source>Richtig</source>
        <extracomment>Heading of the count of right answers</extracomment>
        <translation>Richtig</translation>
    </message>
    <message id="476s">
        <source>sehr hoch</source>
        <extracomment>Settings: accuracy asked of the tone formed with the pitch slider</extracomment>
        <translation>sehr hoch</translation>
    </message>
    <message id="478s">
        <source>sehr niedrig</source>
        <extracomment>Settings: accuracy asked of the tone formed with the pitch slider</extracomment>
        <translation>sehr niedrig</translation>
    </message>
    <message id="480s">
        <source>s</source>
        <extracomment>Test: unit behind the seconds left</extracomment>
        <translation>s</translation>
    </message>
    <message id="481s">
        <source>Sekunde</source>
        <extracomment>Interval name without its quality, in the table of degree names</extracomment>
        <translation>Sekunde</translation>
    </message>
    <message id="483s">
        <source>Ihre gebildete Tonhöhe</source>
        <extracomment>Build exercise: what is heard now in the comparison, the student's pitch</extracomment>
        <translation>Ihre gebildete Tonhöhe</translation>
    </message>
    <message id="486s">
        <source>Septime</source>
        <extracomment>Interval name without its quality, in the table of degree names</extracomment>
        <translation>Septime</translation>
    </message>
    <message id="488s">
        <source>Sexte</source>
        <extracomment>Interval name without its quality, in the table of degree names</extracomment>
        <translation>Sexte</translation>
    </message>
    <message id="495s">
        <source>Soll der Stand des Trainings gespeichert werden?</source>
        <extracomment>Question in a yes-or-no box when a training is left</extracomment>
        <translation>Soll der Stand des Trainings gespeichert werden?</translation>
    </message>
    <message id="496s">
        <source>spielen</source>
        <extracomment>First window: kind of exercise (play the row on the keyboard)</extracomment>
        <translation>spielen</translation>
    </message>
    <message id="508s">
        <source>auf Stufe</source>
        <extracomment>Settings: group title 'Tone 2: on degree(n)'; short, a mark stands beside it; '(n)' follows at once</extracomment>
        <translation>auf Stufe</translation>
    </message>
    <message id="544s">
        <source>Die tatsächliche Tonhöhe</source>
        <extracomment>Build exercise: what is heard now in the comparison, the true pitch</extracomment>
        <translation>Die tatsächliche Tonhöhe</translation>
    </message>
    <message id="545s">
        <source>tatsächliche Tonhöhe</source>
        <extracomment>Build exercise: caption of the target pitch</extracomment>
        <translation>tatsächliche Tonhöhe</translation>
    </message>
    <message id="546s">
        <source>temperiert</source>
        <extracomment>Build exercise: tuning in force</extracomment>
        <translation>temperiert</translation>
    </message>
    <message id="549s">
        <source>Terz</source>
        <extracomment>Interval name without its quality, in the table of degree names</extracomment>
        <translation>Terz</translation>
    </message>
    <message id="550s">
        <source>Test</source>
        <extracomment>Settings: exercise level, a measured test</extracomment>
        <translation>Test</translation>
    </message>
    <message id="556s">
        <source>Ton</source>
        <extracomment>Word before the number or the meaning of a tone: 'Tone 2: ...', 'Tone: keynote'</extracomment>
        <translation>Ton</translation>
    </message>
    <message id="561s">
        <source>Schreibweise</source>
        <extracomment>Keyboard and write exercises: warning that the spelling of a tone does not fit the key; exclamation marks follow</extracomment>
        <translation>Schreibweise</translation>
    </message>
    <message id="564s">
        <source>Training mit Speichern</source>
        <extracomment>Settings: exercise level, a training that can be saved</extracomment>
        <translation>Training mit Speichern</translation>
    </message>
    <message id="565s">
        <source>Training fortsetzen</source>
        <extracomment>Settings: exercise level, goes on with a saved training</extracomment>
        <translation>Training fortsetzen</translation>
    </message>
    <message id="573s">
        <source>überm. Prime</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>überm. Prime</translation>
    </message>
    <message id="574s">
        <source>überm. Quarte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>überm. Quarte</translation>
    </message>
    <message id="575s">
        <source>überm. Quinte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>überm. Quinte</translation>
    </message>
    <message id="576s">
        <source>überm. Sekunde</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>überm. Sekunde</translation>
    </message>
    <message id="577s">
        <source>überm. Sexte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>überm. Sexte</translation>
    </message>
    <message id="578s">
        <source>ü1</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>ü1</translation>
    </message>
    <message id="579s">
        <source>ü2</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>ü2</translation>
    </message>
    <message id="580s">
        <source>ü4</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>ü4</translation>
    </message>
    <message id="581s">
        <source>ü5</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>ü5</translation>
    </message>
    <message id="582s">
        <source>ü6</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>ü6</translation>
    </message>
    <message id="586s">
        <source>Übungsart</source>
        <extracomment>First window: title of the group of exercise kinds; also a label of the result sheet</extracomment>
        <translation>Übungsart</translation>
    </message>
    <message id="592s">
        <source>v7</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>v7</translation>
    </message>
    <message id="593s">
        <source>verm. Oktave</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>verm. Oktave</translation>
    </message>
    <message id="594s">
        <source>verm. Quarte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>verm. Quarte</translation>
    </message>
    <message id="595s">
        <source>verm. Quinte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>verm. Quinte</translation>
    </message>
    <message id="596s">
        <source>verm. Septime</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>verm. Septime</translation>
    </message>
    <message id="597s">
        <source>verm. Terz</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>verm. Terz</translation>
    </message>
    <message id="598s">
        <source>v3</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>v3</translation>
    </message>
    <message id="599s">
        <source>v4</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>v4</translation>
    </message>
    <message id="600s">
        <source>v5</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>v5</translation>
    </message>
    <message id="602s">
        <source>v8</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>v8</translation>
    </message>
    <message id="604s">
        <source>variable Tonhöhe</source>
        <extracomment>Build exercise: caption of the pitch slider</extracomment>
        <translation>variable Tonhöhe</translation>
    </message>
    <message id="616s">
        <source>Vorgabe: alle drei Töne</source>
        <extracomment>Build exercise: what is heard now, all three tones at their true pitch</extracomment>
        <translation>Vorgabe: alle drei Töne</translation>
    </message>
    <message id="623s">
        <source>aufwärts</source>
        <extracomment>Settings: list of transpositions, direction up</extracomment>
        <translation>aufwärts</translation>
    </message>
    <message id="625s">
        <source>weiter</source>
        <extracomment>Button that goes on when all is done: exercise window at the end of a training or test, result sheet</extracomment>
        <translation>weiter</translation>
    </message>
    <message id="629s">
        <source>wiederholen</source>
        <extracomment>Exercise window: button, plays the row again during the task</extracomment>
        <translation>wiederholen</translation>
    </message>
    <message id="632s">
        <source>wiederholen (Kontrolle)</source>
        <extracomment>Exercise window: button, plays the row again after the task</extracomment>
        <translation>wiederholen (Kontrolle)</translation>
    </message>
    <message id="633s">
        <source>Antworten</source>
        <extracomment>Build exercise: heading over the answer fields</extracomment>
        <translation>Antworten</translation>
    </message>
    <message id="634s">
        <source>Wiederholungen</source>
        <extracomment>Build exercise: heading over the count of repeats</extracomment>
        <translation>Wiederholungen</translation>
    </message>
    <message id="635s">
        <source>Stimmung</source>
        <extracomment>Settings: group title; result sheet: label; build exercise: heading over the tuning in force</extracomment>
        <translation>Stimmung</translation>
    </message>
    <message id="640s">
        <source>zurück</source>
        <extracomment>Exercise window: button that leaves the exercise</extracomment>
        <translation>zurück</translation>
    </message>
    <message id="641s">
        <source>Grundton</source>
        <extracomment>Settings: whose instrument is being chosen (the keynote sounding along)</extracomment>
        <translation>Grundton</translation>
    </message>
    <message id="648s">
        <source>Aisis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 32</extracomment>
        <translation>Aisis</translation>
    </message>
    <message id="649s">
        <source>Ases</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 4</extracomment>
        <translation>Ases</translation>
    </message>
    <message id="651s">
        <source>Cisis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 29</extracomment>
        <translation>Cisis</translation>
    </message>
    <message id="652s">
        <source>Ceses</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 1</extracomment>
        <translation>Ceses</translation>
    </message>
    <message id="654s">
        <source>Hisis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 34</extracomment>
        <translation>Hisis</translation>
    </message>
    <message id="655s">
        <source>Heses</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 6</extracomment>
        <translation>Heses</translation>
    </message>
    <message id="656s">
        <source>Disis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 31</extracomment>
        <translation>Disis</translation>
    </message>
    <message id="657s">
        <source>Deses</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 3</extracomment>
        <translation>Deses</translation>
    </message>
    <message id="659s">
        <source>Eisis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 33</extracomment>
        <translation>Eisis</translation>
    </message>
    <message id="660s">
        <source>Eses</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 5</extracomment>
        <translation>Eses</translation>
    </message>
    <message id="663s">
        <source>Fisis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 28</extracomment>
        <translation>Fisis</translation>
    </message>
    <message id="664s">
        <source>Feses</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 0</extracomment>
        <translation>Feses</translation>
    </message>
    <message id="666s">
        <source>Gisis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 30</extracomment>
        <translation>Gisis</translation>
    </message>
    <message id="667s">
        <source>Geses</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 2</extracomment>
        <translation>Geses</translation>
    </message>
    <message id="681s">
        <source>C</source>
        <extracomment>Settings: lowest tone of a range (range list, 'C to c''')</extracomment>
        <translation>C</translation>
    </message>
    <message id="682s">
        <source>c</source>
        <extracomment>Settings: lowest tone of a range (range list, 'C to c''')</extracomment>
        <translation>c</translation>
    </message>
    <message id="683s">
        <source>c'</source>
        <extracomment>Settings: lowest tone of a range (range list, 'C to c''')</extracomment>
        <translation>c'</translation>
    </message>
    <message id="684s">
        <source>c''</source>
        <extracomment>Settings: lowest tone of a range (range list, 'C to c''')</extracomment>
        <translation>c''</translation>
    </message>
    <message id="690s">
        <source>schreiben</source>
        <extracomment>First window: kind of exercise (write the row on the staff)</extracomment>
        <translation>schreiben</translation>
    </message>
    <message id="694s">
        <source>c'</source>
        <extracomment>Settings: highest tone of a range (range list, 'C to c''')</extracomment>
        <translation>c'</translation>
    </message>
    <message id="695s">
        <source>c''</source>
        <extracomment>Settings: highest tone of a range (range list, 'C to c''')</extracomment>
        <translation>c''</translation>
    </message>
    <message id="696s">
        <source>c'''</source>
        <extracomment>Settings: highest tone of a range (range list, 'C to c''')</extracomment>
        <translation>c'''</translation>
    </message>
    <message id="697s">
        <source>c''''</source>
        <extracomment>Settings: highest tone of a range (range list, 'C to c''')</extracomment>
        <translation>c''''</translation>
    </message>
    <message id="699s">
        <source>Version</source>
        <extracomment>First window: stands before the version number</extracomment>
        <translation>Version</translation>
    </message>
    <message id="700s">
        <source>: </source>
        <extracomment>Joins a title and what it tells: 'Date: 1.1.', 'Ear training: identify'. Keep the blank at the end</extracomment>
        <translation>: </translation>
    </message>
    <message id="701s">
        <source>/</source>
        <extracomment>Stands with blanks between the two names of the first degree: 'Unison / Octave'</extracomment>
        <translation>/</translation>
    </message>
    <message id="702s">
        <source>bis</source>
        <extracomment>Stands with blanks between the lowest and the highest tone of a range: 'c to c''</extracomment>
        <translation>bis</translation>
    </message>
    <message id="703s">
        <source>!</source>
        <extracomment>Exclamation mark of warnings, written once or twice</extracomment>
        <translation>!</translation>
    </message>
    <message id="705s">
        <source>deutsch</source>
        <extracomment>Language part of the folder and file names of the help texts; lower case, no blanks</extracomment>
        <translation>deutsch</translation>
    </message>
    <message id="715s">
        <source>tonale Intervalle sukzessiv schreiben</source>
        <extracomment>Title of the exercise window, also behind the kind of study in the title of the settings</extracomment>
        <translation>tonale Intervalle sukzessiv schreiben</translation>
    </message>
    <message id="720s">
        <source>Es ist ein Fehler aufgetreten.</source>
        <extracomment>Error message, first of four lines</extracomment>
        <translation>Es ist ein Fehler aufgetreten.</translation>
    </message>
    <message id="721s">
        <source>Einzelheiten stehen in der Logdatei.</source>
        <extracomment>Error message, second of four lines</extracomment>
        <translation>Einzelheiten stehen in der Logdatei.</translation>
    </message>
    <message id="722s">
        <source>Bitte versuchen Sie es noch einmal.</source>
        <extracomment>Error message, third of four lines</extracomment>
        <translation>Bitte versuchen Sie es noch einmal.</translation>
    </message>
    <message id="723s">
        <source>Tritt der Fehler wieder auf, melden Sie ihn bitte Ihrer Betreuung.</source>
        <extracomment>Error message, last of four lines</extracomment>
        <translation>Tritt der Fehler wieder auf, melden Sie ihn bitte Ihrer Betreuung.</translation>
    </message>
    <message id="724s">
        <source>Gehörbildung</source>
        <extracomment>First window: choice of the kind of study</extracomment>
        <translation>Gehörbildung</translation>
    </message>
    <message id="725s">
        <source>Musiklehre</source>
        <extracomment>First window: choice of the kind of study</extracomment>
        <translation>Musiklehre</translation>
    </message>
    <message id="832s">
        <source>Ergänzen Sie in beliebiger Reihenfolge die fehlenden
Vorzeichen!</source>
        <extracomment>Settings and keyboard exercise: small notice in two lines</extracomment>
        <translation>Ergänzen Sie in beliebiger Reihenfolge die fehlenden
Vorzeichen!</translation>
    </message>
    <message id="1000s">
        <source>Deutsch</source>
        <extracomment>Name of the language in its own words, as --language takes it</extracomment>
        <translation>Deutsch</translation>
    </message>
    <message id="1001s">
        <source>Hilfe</source>
        <extracomment>First window: button</extracomment>
        <translation>Hilfe</translation>
    </message>
    <message id="1002s">
        <source>noch nicht verfügbar</source>
        <extracomment>First window: why an option has no exercise yet, for a tooltip and a screen reader</extracomment>
        <translation>noch nicht verfügbar</translation>
    </message>
    <message id="1003s">
        <source>tonale Intervalle sukzessiv</source>
        <extracomment>First window: end of its title, behind 'Exercise type: '</extracomment>
        <translation>tonale Intervalle sukzessiv</translation>
    </message>
    <message id="1004s">
        <source>de</source>
        <extracomment>The language's code, by which the toolkit's own dialogs find theirs: 'de', 'pt_BR'</extracomment>
        <translation>de</translation>
    </message>
    <message id="1010s">
        <source>In den Ordner Ihrer Trainings kann nicht geschrieben werden. Sie können üben, aber gespeicherte Trainings gehen mit dem Programmende verloren. Ordner:</source>
        <extracomment>Message at the start; the folder and the reason follow on lines of their own</extracomment>
        <translation>In den Ordner Ihrer Trainings kann nicht geschrieben werden. Sie können üben, aber gespeicherte Trainings gehen mit dem Programmende verloren. Ordner:</translation>
    </message>
    <message id="1011s">
        <source>Die Datei mit den gespeicherten Trainings ist beschädigt. Eine neue wurde angelegt; die beschädigte bleibt hier erhalten:</source>
        <extracomment>Message at the start; the path follows on the next line</extracomment>
        <translation>Die Datei mit den gespeicherten Trainings ist beschädigt. Eine neue wurde angelegt; die beschädigte bleibt hier erhalten:</translation>
    </message>
    <message id="1012s">
        <source>Die gespeicherten Trainings können im Augenblick nicht gelesen werden. Sie können üben; speichern lässt sich ein Training erst wieder, wenn diese Datei gelesen werden kann:</source>
        <extracomment>Message at the start; the path and the reason follow on lines of their own</extracomment>
        <translation>Die gespeicherten Trainings können im Augenblick nicht gelesen werden. Sie können üben; speichern lässt sich ein Training erst wieder, wenn diese Datei gelesen werden kann:</translation>
    </message>
    <message id="1013s">
        <source>Die Logdatei kann nicht geschrieben werden. Das Üben wird davon nicht gestört. Bitte prüfen Sie die Schreibrechte im Ordner:</source>
        <extracomment>Message at the start; the folder follows on the next line</extracomment>
        <translation>Die Logdatei kann nicht geschrieben werden. Das Üben wird davon nicht gestört. Bitte prüfen Sie die Schreibrechte im Ordner:</translation>
    </message>
    <message id="1014s">
        <source>Auf dem Datenträger ist kein Platz mehr. Bitte schaffen Sie Platz.</source>
        <extracomment>Why a file or folder could not be used, behind a message that names it</extracomment>
        <translation>Auf dem Datenträger ist kein Platz mehr. Bitte schaffen Sie Platz.</translation>
    </message>
    <message id="1015s">
        <source>Das Recht dazu fehlt.</source>
        <extracomment>Why a file or folder could not be used, behind a message that names it</extracomment>
        <translation>Das Recht dazu fehlt.</translation>
    </message>
    <message id="1016s">
        <source>Den Ordner gibt es nicht.</source>
        <extracomment>Why a file or folder could not be used, behind a message that names it</extracomment>
        <translation>Den Ordner gibt es nicht.</translation>
    </message>
    <message id="1017s">
        <source>Der Datenträger ist schreibgeschützt.</source>
        <extracomment>Why a file or folder could not be used, behind a message that names it</extracomment>
        <translation>Der Datenträger ist schreibgeschützt.</translation>
    </message>
    <message id="1018s">
        <source>Fehler Nr. %1</source>
        <extracomment>Why something failed, where no better word is known; %1 is the number of the error</extracomment>
        <translation>Fehler Nr. %1</translation>
    </message>
    <message id="1019s">
        <source>Eine unterbrochene Übung kann nicht wiederhergestellt werden, denn die Datei mit ihrem Stand ist beschädigt. Die Datei bleibt hier erhalten:</source>
        <extracomment>Message at the start; the path follows on the next line</extracomment>
        <translation>Eine unterbrochene Übung kann nicht wiederhergestellt werden, denn die Datei mit ihrem Stand ist beschädigt. Die Datei bleibt hier erhalten:</translation>
    </message>
    <message id="1020s">
        <source>Eine unterbrochene Übung kann nicht wiederhergestellt werden, denn die Datei mit ihrem Stand ist leer.</source>
        <translation>Eine unterbrochene Übung kann nicht wiederhergestellt werden, denn die Datei mit ihrem Stand ist leer.</translation>
    </message>
    <message id="1030s">
        <source>ab 4 Oktaven Tonraum</source>
        <extracomment>Settings: why an option is greyed, for a tooltip and a screen reader</extracomment>
        <translation>ab 4 Oktaven Tonraum</translation>
    </message>
    <message id="1031s">
        <source>nur bei Intervall-Größe „max. 1 Oktave“</source>
        <extracomment>Settings: why an option is greyed, for a tooltip and a screen reader</extracomment>
        <translation>nur bei Intervall-Größe „max. 1 Oktave“</translation>
    </message>
    <message id="1032s">
        <source>nur, wenn alle Stufen gewählt sind</source>
        <extracomment>Settings: why an option is greyed, for a tooltip and a screen reader</extracomment>
        <translation>nur, wenn alle Stufen gewählt sind</translation>
    </message>
    <message id="1033s">
        <source>nur bei Intervall-Anzahl 2</source>
        <extracomment>Settings: why an option is greyed, for a tooltip and a screen reader</extracomment>
        <translation>nur bei Intervall-Anzahl 2</translation>
    </message>
    <message id="1034s">
        <source>durch die Prüfung festgelegt</source>
        <extracomment>Settings: why a whole group is greyed, for a tooltip and a screen reader</extracomment>
        <translation>durch die Prüfung festgelegt</translation>
    </message>
    <message id="1035s">
        <source>durch das gespeicherte Training festgelegt</source>
        <extracomment>Settings: why a whole group is greyed, for a tooltip and a screen reader</extracomment>
        <translation>durch das gespeicherte Training festgelegt</translation>
    </message>
    <message id="1036s">
        <source>durch den eingelesenen Test festgelegt</source>
        <extracomment>Settings: why a whole group is greyed, for a tooltip and a screen reader</extracomment>
        <translation>durch den eingelesenen Test festgelegt</translation>
    </message>
    <message id="1037s">
        <source>Gespeicherte Trainings lassen sich im Moment nicht lesen.</source>
        <extracomment>Settings: one line while the store does not answer</extracomment>
        <translation>Gespeicherte Trainings lassen sich im Moment nicht lesen.</translation>
    </message>
    <message id="1038s">
        <source>Das gespeicherte Training ist beschädigt und kann nicht fortgesetzt werden.</source>
        <extracomment>Settings: one line when a saved training is found broken</extracomment>
        <translation>Das gespeicherte Training ist beschädigt und kann nicht fortgesetzt werden.</translation>
    </message>
    <message id="1040s">
        <source>%1 Gruppen aufgelistet in: %2</source>
        <extracomment>Settings of a supervisor: line that says what a button has done; %1 is a number above 1, %2 the place</extracomment>
        <translation>%1 Gruppen aufgelistet in: %2</translation>
    </message>
    <message id="1041s">
        <source>1 Gruppe aufgelistet in: %2</source>
        <extracomment>Settings of a supervisor: line that says what a button has done; %2 is the place</extracomment>
        <translation>1 Gruppe aufgelistet in: %2</translation>
    </message>
    <message id="1042s">
        <source>Keine Gruppe ist als Prüfung markiert. Leere Liste in: %2</source>
        <extracomment>Settings of a supervisor: line that says what a button has done; %2 is the place</extracomment>
        <translation>Keine Gruppe ist als Prüfung markiert. Leere Liste in: %2</translation>
    </message>
    <message id="1043s">
        <source>Die Liste konnte nicht ausgegeben werden.</source>
        <extracomment>Settings of a supervisor: line that says what a button has done</extracomment>
        <translation>Die Liste konnte nicht ausgegeben werden.</translation>
    </message>
    <message id="1044s">
        <source>Diagnoseausgabe des Programms (Terminal)</source>
        <extracomment>Settings of a supervisor: where a listing goes</extracomment>
        <translation>Diagnoseausgabe des Programms (Terminal)</translation>
    </message>
    <message id="1045s">
        <source>Kein Wert des Tests passt zu diesen Einstellungen; alles bleibt, wie es war.</source>
        <extracomment>Settings of a supervisor: line that says what a button has done</extracomment>
        <translation>Kein Wert des Tests passt zu diesen Einstellungen; alles bleibt, wie es war.</translation>
    </message>
    <message id="1046s">
        <source>%1 Gruppen eingestellt und gesperrt.</source>
        <extracomment>Settings of a supervisor: line that says what a button has done; %1 is a number above 1</extracomment>
        <translation>%1 Gruppen eingestellt und gesperrt.</translation>
    </message>
    <message id="1047s">
        <source>1 Gruppe eingestellt und gesperrt.</source>
        <extracomment>Settings of a supervisor: line that says what a button has done</extracomment>
        <translation>1 Gruppe eingestellt und gesperrt.</translation>
    </message>
    <message id="1048s">
        <source>,</source>
        <extracomment>Decimal sign of numbers that are spoken</extracomment>
        <translation>,</translation>
    </message>
    <message id="1050s">
        <source>Übungsmodus</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Übungsmodus</translation>
    </message>
    <message id="1051s">
        <source>Tongeschlecht</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Tongeschlecht</translation>
    </message>
    <message id="1052s">
        <source>Abfolge</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Abfolge</translation>
    </message>
    <message id="1053s">
        <source>Tonraum</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Tonraum</translation>
    </message>
    <message id="1054s">
        <source>Intervall-Größe</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Intervall-Größe</translation>
    </message>
    <message id="1055s">
        <source>Intervall-Anzahl</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Intervall-Anzahl</translation>
    </message>
    <message id="1056s">
        <source>Intervall-Bestimmung</source>
        <extracomment>Settings: group title; result sheet: label; the options go on: from the keynote</extracomment>
        <translation>Intervall-Bestimmung</translation>
    </message>
    <message id="1057s">
        <source>Grundton zusätzlich</source>
        <extracomment>Settings: group title</extracomment>
        <translation>Grundton zusätzlich</translation>
    </message>
    <message id="1058s">
        <source>Tonart</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Tonart</translation>
    </message>
    <message id="1059s">
        <source>Frequenz</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Frequenz</translation>
    </message>
    <message id="1060s">
        <source>Tempo</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Tempo</translation>
    </message>
    <message id="1061s">
        <source>Klang</source>
        <extracomment>Settings: group title</extracomment>
        <translation>Klang</translation>
    </message>
    <message id="1062s">
        <source>Dur</source>
        <extracomment>Settings: option</extracomment>
        <translation>Dur</translation>
    </message>
    <message id="1063s">
        <source>moll</source>
        <extracomment>Settings: option</extracomment>
        <translation>moll</translation>
    </message>
    <message id="1064s">
        <source>Dur-moll</source>
        <extracomment>Settings: option</extracomment>
        <translation>Dur-moll</translation>
    </message>
    <message id="1065s">
        <source>manuell</source>
        <extracomment>Settings: option: order of tasks</extracomment>
        <translation>manuell</translation>
    </message>
    <message id="1066s">
        <source>automatisch</source>
        <extracomment>Settings: option: order of tasks</extracomment>
        <translation>automatisch</translation>
    </message>
    <message id="1067s">
        <source>gleichbleibend</source>
        <extracomment>Settings: option: key</extracomment>
        <translation>gleichbleibend</translation>
    </message>
    <message id="1068s">
        <source>wechselnd</source>
        <extracomment>Settings: option: key</extracomment>
        <translation>wechselnd</translation>
    </message>
    <message id="1069s">
        <source>ja</source>
        <extracomment>Settings: option: keynote sounds along</extracomment>
        <translation>ja</translation>
    </message>
    <message id="1070s">
        <source>nein</source>
        <extracomment>Settings: option: keynote sounds along</extracomment>
        <translation>nein</translation>
    </message>
    <message id="1071s">
        <source>max. 1 Oktave</source>
        <extracomment>Settings: option: interval size</extracomment>
        <translation>max. 1 Oktave</translation>
    </message>
    <message id="1072s">
        <source>Oktaven</source>
        <extracomment>Settings: unit behind a number, tone range and interval size</extracomment>
        <translation>Oktaven</translation>
    </message>
    <message id="1073s">
        <source>gemischt (0 - 2 Okt)</source>
        <extracomment>Settings: option: interval size</extracomment>
        <translation>gemischt (0 - 2 Okt)</translation>
    </message>
    <message id="1074s">
        <source>fest (a' 440 Hz)</source>
        <extracomment>Settings: option: frequency; keep the stroke behind the a</extracomment>
        <translation>fest (a' 440 Hz)</translation>
    </message>
    <message id="1075s">
        <source>variabel</source>
        <extracomment>Settings: option: frequency</extracomment>
        <translation>variabel</translation>
    </message>
    <message id="1076s">
        <source>vom Grundton</source>
        <extracomment>Settings: option: interval named</extracomment>
        <translation>vom Grundton</translation>
    </message>
    <message id="1077s">
        <source>vom Vorton</source>
        <extracomment>Settings: option: interval named</extracomment>
        <translation>vom Vorton</translation>
    </message>
    <message id="1078s">
        <source>alle</source>
        <extracomment>Settings: option: degrees of tone 2</extracomment>
        <translation>alle</translation>
    </message>
    <message id="1079s">
        <source>1 nach Wahl</source>
        <extracomment>Settings: option: degrees of tone 2</extracomment>
        <translation>1 nach Wahl</translation>
    </message>
    <message id="1080s">
        <source>Hilfe</source>
        <extracomment>Settings: button</extracomment>
        <translation>Hilfe</translation>
    </message>
    <message id="1081s">
        <source>Klangprobe</source>
        <extracomment>Settings: button</extracomment>
        <translation>Klangprobe</translation>
    </message>
    <message id="1082s">
        <source>Einlesen Test</source>
        <extracomment>Settings: button for supervisors</extracomment>
        <translation>Einlesen Test</translation>
    </message>
    <message id="1083s">
        <source>Einstellungen Speichern</source>
        <extracomment>Settings: button for supervisors</extracomment>
        <translation>Einstellungen Speichern</translation>
    </message>
    <message id="1084s">
        <source>Lautstärke</source>
        <extracomment>Settings: slider</extracomment>
        <translation>Lautstärke</translation>
    </message>
    <message id="1085s">
        <source>Das MIDI-Gerät lässt sich nicht verwenden. Prüfen Sie die Verbindung, oder starten Sie das Programm mit --midi N, der Nummer eines anderen Geräts.</source>
        <extracomment>Settings: message; how it goes on may follow on a line of its own</extracomment>
        <translation>Das MIDI-Gerät lässt sich nicht verwenden. Prüfen Sie die Verbindung, oder starten Sie das Programm mit --midi N, der Nummer eines anderen Geräts.</translation>
    </message>
    <message id="1086s">
        <source>Oktavbereich</source>
        <extracomment>Settings: name of a list for a screen reader; result sheet: label</extracomment>
        <translation>Oktavbereich</translation>
    </message>
    <message id="1087s">
        <source>Instrument</source>
        <extracomment>Settings: name of a list for a screen reader; result sheet: label</extracomment>
        <translation>Instrument</translation>
    </message>
    <message id="1088s">
        <source>Stimme</source>
        <extracomment>Settings: name of a list for a screen reader: the tones or the keynote</extracomment>
        <translation>Stimme</translation>
    </message>
    <message id="1089s">
        <source>Prüfung Nr.</source>
        <extracomment>Settings: name of a list for a screen reader</extracomment>
        <translation>Prüfung Nr.</translation>
    </message>
    <message id="1090s">
        <source>Ton 2 auf Stufe</source>
        <extracomment>Settings: name of a list for a screen reader; result sheet: label</extracomment>
        <translation>Ton 2 auf Stufe</translation>
    </message>
    <message id="1091s">
        <source>Richtung der Transposition</source>
        <extracomment>Settings: name of a list for a screen reader</extracomment>
        <translation>Richtung der Transposition</translation>
    </message>
    <message id="1092s">
        <source>Intervall der Transposition</source>
        <extracomment>Settings: name of a list for a screen reader</extracomment>
        <translation>Intervall der Transposition</translation>
    </message>
    <message id="1093s">
        <source>Gespielt wird auf dem eingebauten Klangerzeuger oder dem letzten Gerät der Liste.</source>
        <extracomment>Settings: message, further line behind 1085</extracomment>
        <translation>Gespielt wird auf dem eingebauten Klangerzeuger oder dem letzten Gerät der Liste.</translation>
    </message>
    <message id="1094s">
        <source>Es geht ohne Klang weiter.</source>
        <extracomment>Settings: message, further line behind 1085</extracomment>
        <translation>Es geht ohne Klang weiter.</translation>
    </message>
    <message id="1100s">
        <source>Trainingsstand</source>
        <translation>Trainingsstand</translation>
    </message>
    <message id="1101s">
        <source>Aufgabe gelöst</source>
        <translation>Aufgabe gelöst</translation>
    </message>
    <message id="1102s">
        <source>zu schwer !!</source>
        <translation>zu schwer !!</translation>
    </message>
    <message id="1103s">
        <source>Nr.</source>
        <translation>Nr.</translation>
    </message>
    <message id="1104s">
        <source>Speichern</source>
        <translation>Speichern</translation>
    </message>
    <message id="1105s">
        <source>Nicht speichern</source>
        <translation>Nicht speichern</translation>
    </message>
    <message id="1106s">
        <source>Das Training konnte nicht gespeichert werden. Soll es noch einmal versucht werden?</source>
        <translation>Das Training konnte nicht gespeichert werden. Soll es noch einmal versucht werden?</translation>
    </message>
    <message id="1107s">
        <source>Noch einmal versuchen</source>
        <translation>Noch einmal versuchen</translation>
    </message>
    <message id="1108s">
        <source>Ohne Speichern verlassen</source>
        <translation>Ohne Speichern verlassen</translation>
    </message>
    <message id="1109s">
        <source>„wiederholen (Kontrolle)“ spielt die Reihe noch einmal. Auch „Grundton-Kontrolle“ führt weiter.</source>
        <translation>„wiederholen (Kontrolle)“ spielt die Reihe noch einmal. Auch „Grundton-Kontrolle“ führt weiter.</translation>
    </message>
    <message id="1110s">
        <source>Die Reihe erklingt.</source>
        <translation>Die Reihe erklingt.</translation>
    </message>
    <message id="1111s">
        <source>Welches Intervall folgt auf Ton %1?</source>
        <translation>Welches Intervall folgt auf Ton %1?</translation>
    </message>
    <message id="1112s">
        <source>Das Protokoll konnte hier nicht geschrieben werden:</source>
        <translation>Das Protokoll konnte hier nicht geschrieben werden:</translation>
    </message>
    <message id="1113s">
        <source>Das Protokoll konnte nicht geschrieben werden. Soll es noch einmal versucht werden?</source>
        <translation>Das Protokoll konnte nicht geschrieben werden. Soll es noch einmal versucht werden?</translation>
    </message>
    <message id="1114s">
        <source>Das Training ist beendet. Mit „weiter“ geht es zum Ergebnis.</source>
        <translation>Das Training ist beendet. Mit „weiter“ geht es zum Ergebnis.</translation>
    </message>
    <message id="1115s">
        <source>Wiederholungen</source>
        <translation>Wiederholungen</translation>
    </message>
    <message id="1116s">
        <source>Grundton-Kontrollen</source>
        <translation>Grundton-Kontrollen</translation>
    </message>
    <message id="1117s">
        <source>Alle Aufgaben sind beantwortet. Mit „weiter“ geht es zum Ergebnis.</source>
        <translation>Alle Aufgaben sind beantwortet. Mit „weiter“ geht es zum Ergebnis.</translation>
    </message>
    <message id="1118s">
        <source>Teststand einblenden</source>
        <translation>Teststand einblenden</translation>
    </message>
    <message id="1119s">
        <source>Teststand ausblenden</source>
        <translation>Teststand ausblenden</translation>
    </message>
    <message id="1120s">
        <source>Einen Moment bitte!</source>
        <translation>Einen Moment bitte!</translation>
    </message>
    <message id="1121s">
        <source>Gleich folgt die nächste Aufgabe.</source>
        <translation>Gleich folgt die nächste Aufgabe.</translation>
    </message>
    <message id="1122s">
        <source>Der Grundton erklingt.</source>
        <translation>Der Grundton erklingt.</translation>
    </message>
    <message id="1123s">
        <source>richtig</source>
        <translation>richtig</translation>
    </message>
    <message id="1124s">
        <source>falsch</source>
        <translation>falsch</translation>
    </message>
    <message id="1125s">
        <source>gesucht</source>
        <translation>gesucht</translation>
    </message>
    <message id="1126s">
        <source>Weiter ohne Protokoll</source>
        <translation>Weiter ohne Protokoll</translation>
    </message>
    <message id="1127s">
        <source>Ton</source>
        <translation>Ton</translation>
    </message>
    <message id="1128s">
        <source>Das MIDI-Gerät antwortet nicht. Die Übung bleibt offen: „wiederholen“ versucht es noch einmal, „zurück“ führt zum Ergebnis.</source>
        <translation>Das MIDI-Gerät antwortet nicht. Die Übung bleibt offen: „wiederholen“ versucht es noch einmal, „zurück“ führt zum Ergebnis.</translation>
    </message>
    <message id="1129s">
        <source>Das Ende des Trainings konnte nicht gespeichert werden. Das gespeicherte Training wird weiter zum Fortsetzen angeboten.</source>
        <translation>Das Ende des Trainings konnte nicht gespeichert werden. Das gespeicherte Training wird weiter zum Fortsetzen angeboten.</translation>
    </message>
    <message id="1130s">
        <source>gelöst</source>
        <extracomment>left end of the training bar</extracomment>
        <translation>gelöst</translation>
    </message>
    <message id="1131s">
        <source>zu schwer</source>
        <extracomment>right end of the training bar</extracomment>
        <translation>zu schwer</translation>
    </message>
    <message id="1132s">
        <source>%1 %</source>
        <extracomment>percentage with its sign; %1 is the number</extracomment>
        <translation>%1 %</translation>
    </message>
    <message id="1133s">
        <source>Teststand</source>
        <extracomment>title of the card with what is left of a test</extracomment>
        <translation>Teststand</translation>
    </message>
    <message id="1134s">
        <source>Stand</source>
        <extracomment>title of the card with the counters</extracomment>
        <translation>Stand</translation>
    </message>
    <message id="1135s">
        <source>Es liegt stattdessen hier:</source>
        <translation>Es liegt stattdessen hier:</translation>
    </message>
    <message id="1136s">
        <source>Beim Speichern ist ein Fehler aufgetreten. Es ist kein Training zum Fortsetzen gespeichert.</source>
        <translation>Beim Speichern ist ein Fehler aufgetreten. Es ist kein Training zum Fortsetzen gespeichert.</translation>
    </message>
    <message id="1137s">
        <source>Beim Speichern ist ein Fehler aufgetreten, und die gespeicherten Trainings lassen sich nicht lesen. Ob eines zum Fortsetzen da ist, zeigt sich, wenn die Einstellungen neu geöffnet werden.</source>
        <translation>Beim Speichern ist ein Fehler aufgetreten, und die gespeicherten Trainings lassen sich nicht lesen. Ob eines zum Fortsetzen da ist, zeigt sich, wenn die Einstellungen neu geöffnet werden.</translation>
    </message>
    <message id="1138s">
        <source>Das bereits gespeicherte Training dieser Übung wird dabei ersetzt.</source>
        <extracomment>behind the question whether to save the training</extracomment>
        <translation>Das bereits gespeicherte Training dieser Übung wird dabei ersetzt.</translation>
    </message>
    <message id="1139s">
        <source>Ob für diese Übung schon ein Training gespeichert ist, lässt sich im Moment nicht feststellen; ein vorhandenes würde ersetzt.</source>
        <extracomment>behind the question whether to save the training, while the store does not answer</extracomment>
        <translation>Ob für diese Übung schon ein Training gespeichert ist, lässt sich im Moment nicht feststellen; ein vorhandenes würde ersetzt.</translation>
    </message>
    <message id="1140s">
        <source>Hören Sie zu.</source>
        <translation>Hören Sie zu.</translation>
    </message>
    <message id="1141s">
        <source>Hören Sie die Reihe zur Kontrolle.</source>
        <translation>Hören Sie die Reihe zur Kontrolle.</translation>
    </message>
    <message id="1142s">
        <source>Weiter zur nächsten Aufgabe</source>
        <translation>Weiter zur nächsten Aufgabe</translation>
    </message>
    <message id="1143s">
        <source>Vorher können Sie die Reihe oder den Grundton noch einmal hören.</source>
        <translation>Vorher können Sie die Reihe oder den Grundton noch einmal hören.</translation>
    </message>
    <message id="1144s">
        <source>Weiter zum Ergebnis</source>
        <translation>Weiter zum Ergebnis</translation>
    </message>
    <message id="1145s">
        <source>Die Zeit ist um.</source>
        <translation>Die Zeit ist um.</translation>
    </message>
    <message id="1146s">
        <source>Die Übung ist beendet.</source>
        <translation>Die Übung ist beendet.</translation>
    </message>
    <message id="1147s">
        <source>Das Ergebnis folgt.</source>
        <translation>Das Ergebnis folgt.</translation>
    </message>
    <message id="1148s">
        <source>Antworten Sie mit einer Schaltfläche oder mit der Taste, die darauf steht.</source>
        <translation>Antworten Sie mit einer Schaltfläche oder mit der Taste, die darauf steht.</translation>
    </message>
    <message id="1149s">
        <source>Mit „weiter“ geht es zum Ergebnis.</source>
        <translation>Mit „weiter“ geht es zum Ergebnis.</translation>
    </message>
    <message id="1150s">
        <source>Stufen-Intervall über dem Grundton</source>
        <translation>Stufen-Intervall über dem Grundton</translation>
    </message>
    <message id="1151s">
        <source>Intervall von Ton zu Ton</source>
        <translation>Intervall von Ton zu Ton</translation>
    </message>
    <message id="1152s">
        <source>z.B. c - moll</source>
        <translation>z.B. c - moll</translation>
    </message>
    <message id="1153s">
        <source>z.B. C - Dur</source>
        <translation>z.B. C - Dur</translation>
    </message>
    <message id="1154s">
        <source>z.B. C - Dur-moll</source>
        <translation>z.B. C - Dur-moll</translation>
    </message>
    <message id="1155s">
        <source>Int:</source>
        <translation>Int:</translation>
    </message>
    <message id="1156s">
        <source>Tonreihe</source>
        <translation>Tonreihe</translation>
    </message>
    <message id="1157s">
        <source>gegeben</source>
        <translation>gegeben</translation>
    </message>
    <message id="1158s">
        <source>Auf welcher Stufe steht Ton %1?</source>
        <translation>Auf welcher Stufe steht Ton %1?</translation>
    </message>
    <message id="1159s">
        <source>Der Test läuft noch, die Zeit geht weiter. Soll er abgebrochen werden?</source>
        <translation>Der Test läuft noch, die Zeit geht weiter. Soll er abgebrochen werden?</translation>
    </message>
    <message id="1160s">
        <source>Die Prüfung läuft noch, die Zeit geht weiter. Soll sie abgebrochen werden?</source>
        <translation>Die Prüfung läuft noch, die Zeit geht weiter. Soll sie abgebrochen werden?</translation>
    </message>
    <message id="1161s">
        <source>Ja, abbrechen</source>
        <translation>Ja, abbrechen</translation>
    </message>
    <message id="1162s">
        <source>Weitermachen</source>
        <translation>Weitermachen</translation>
    </message>
    <message id="1163s">
        <source>noch %1 Versuche</source>
        <translation>noch %1 Versuche</translation>
    </message>
    <message id="1164s">
        <source>noch 1 Versuch</source>
        <translation>noch 1 Versuch</translation>
    </message>
    <message id="1165s">
        <source>Jetzt antworten.</source>
        <translation>Jetzt antworten.</translation>
    </message>
    <message id="1166s">
        <source>Reihe fertig.</source>
        <translation>Reihe fertig.</translation>
    </message>
    <message id="1167s">
        <source>Taste %1</source>
        <translation>Taste %1</translation>
    </message>
    <message id="1168s">
        <source>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen. Ihr Stand ist gespeichert, und Sie können sie mit „%3“ weiterführen.</source>
        <extracomment>%1 number of tasks, %2 study, exercise and level, %3 the name of the exercise level</extracomment>
        <translation>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen. Ihr Stand ist gespeichert, und Sie können sie mit „%3“ weiterführen.</translation>
    </message>
    <message id="1169s">
        <source>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen.</source>
        <extracomment>%1 number of tasks, %2 study, exercise and level</extracomment>
        <translation>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen.</translation>
    </message>
    <message id="1170s">
        <source>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen. Soll ihr Stand gespeichert werden, damit Sie sie mit „%3“ weiterführen können?</source>
        <extracomment>%1 number of tasks, %2 study, exercise and level, %3 the name of the exercise level</extracomment>
        <translation>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen. Soll ihr Stand gespeichert werden, damit Sie sie mit „%3“ weiterführen können?</translation>
    </message>
    <message id="1171s">
        <source>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen. Ihr Stand kann im Augenblick nicht gespeichert werden. Beim nächsten Start des Programms wird es erneut versucht.</source>
        <extracomment>%1 number of tasks, %2 study, exercise and level</extracomment>
        <translation>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen. Ihr Stand kann im Augenblick nicht gespeichert werden. Beim nächsten Start des Programms wird es erneut versucht.</translation>
    </message>
    <message id="1172s">
        <source>Die Klangbibliothek (SoundFont) ist beschädigt oder kann nicht gelesen werden. Die Übung läuft weiter, bleibt aber stumm. Installieren Sie das Paket „timgm6mb-soundfont“ neu.</source>
        <translation>Die Klangbibliothek (SoundFont) ist beschädigt oder kann nicht gelesen werden. Die Übung läuft weiter, bleibt aber stumm. Installieren Sie das Paket „timgm6mb-soundfont“ neu.</translation>
    </message>
    <message id="1173s">
        <source>Das bereits gespeicherte Training dieser Übung ist beschädigt und wird dabei ersetzt.</source>
        <extracomment>behind the question whether to save an interrupted training</extracomment>
        <translation>Das bereits gespeicherte Training dieser Übung ist beschädigt und wird dabei ersetzt.</translation>
    </message>
    <message id="1174s">
        <source>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen. Ihr Stand lässt sich nicht weiterführen.</source>
        <extracomment>%1 number of tasks, %2 study, exercise and level</extracomment>
        <translation>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen. Ihr Stand lässt sich nicht weiterführen.</translation>
    </message>
    <message id="1175s">
        <source>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen. Inzwischen ist ein neuerer Stand gespeichert; er bleibt, und der unterbrochene entfällt.</source>
        <extracomment>%1 number of tasks, %2 study, exercise and level</extracomment>
        <translation>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen. Inzwischen ist ein neuerer Stand gespeichert; er bleibt, und der unterbrochene entfällt.</translation>
    </message>
    <message id="1176s">
        <source>Ihr Protokoll ist gespeichert.</source>
        <extracomment>behind the message that an exercise was interrupted</extracomment>
        <translation>Ihr Protokoll ist gespeichert.</translation>
    </message>
    <message id="1177s">
        <source>Ihr Protokoll liegt im Datenordner, denn in den Protokollordner konnte es nicht geschrieben werden:</source>
        <extracomment>behind the message that an exercise was interrupted; the path follows on the next line</extracomment>
        <translation>Ihr Protokoll liegt im Datenordner, denn in den Protokollordner konnte es nicht geschrieben werden:</translation>
    </message>
    <message id="1178s">
        <source>Ihr Protokoll konnte nicht geschrieben werden. Warum, steht in der Logdatei. Beim nächsten Start des Programms wird es erneut versucht.</source>
        <extracomment>behind the message that an exercise was interrupted</extracomment>
        <translation>Ihr Protokoll konnte nicht geschrieben werden. Warum, steht in der Logdatei. Beim nächsten Start des Programms wird es erneut versucht.</translation>
    </message>
    <message id="1200s">
        <source>Einzel-Ergebnisse</source>
        <extracomment>title of the result sheet</extracomment>
        <translation>Einzel-Ergebnisse</translation>
    </message>
    <message id="1201s">
        <source>Einstellungen</source>
        <extracomment>result sheet: head of the list of settings</extracomment>
        <translation>Einstellungen</translation>
    </message>
    <message id="1202s">
        <source>Ergebnisse</source>
        <extracomment>result sheet: head of the table</extracomment>
        <translation>Ergebnisse</translation>
    </message>
    <message id="1203s">
        <source>Hilfe</source>
        <extracomment>result sheet: button</extracomment>
        <translation>Hilfe</translation>
    </message>
    <message id="1204s">
        <source>Das Blatt konnte nicht gedruckt werden:</source>
        <extracomment>result sheet: a reason follows on the next line</extracomment>
        <translation>Das Blatt konnte nicht gedruckt werden:</translation>
    </message>
    <message id="1205s">
        <source>Drucken</source>
        <extracomment>title of the print dialogs</extracomment>
        <translation>Drucken</translation>
    </message>
    <message id="1206s">
        <source>Blatt als PDF-Datei speichern (kein Drucker eingerichtet)</source>
        <extracomment>result sheet: title of the file dialog</extracomment>
        <translation>Blatt als PDF-Datei speichern (kein Drucker eingerichtet)</translation>
    </message>
    <message id="1207s">
        <source>PDF-Dateien</source>
        <extracomment>result sheet: kind of file in the file dialog</extracomment>
        <translation>PDF-Dateien</translation>
    </message>
    <message id="1208s">
        <source>Stärken und Schwächen</source>
        <extracomment>result sheet: head of the chart</extracomment>
        <translation>Stärken und Schwächen</translation>
    </message>
    <message id="1209s">
        <source>nicht gefragt</source>
        <extracomment>result sheet: spoken for an empty bar</extracomment>
        <translation>nicht gefragt</translation>
    </message>
    <message id="1210s">
        <source>In diesem Übungsmodus werden keine Prozente berechnet.</source>
        <extracomment>result sheet: instead of the chart</extracomment>
        <translation>In diesem Übungsmodus werden keine Prozente berechnet.</translation>
    </message>
    <message id="1211s">
        <source>Ergebnisblatt</source>
        <extracomment>name of the sheet for a screen reader and of the printed document</extracomment>
        <translation>Ergebnisblatt</translation>
    </message>
    <message id="1212s">
        <source>Die Datei kann nicht geschrieben werden: </source>
        <extracomment>result sheet: why a print failed; the path follows at once</extracomment>
        <translation>Die Datei kann nicht geschrieben werden: </translation>
    </message>
    <message id="1213s">
        <source>Der Drucker hat den Auftrag abgebrochen.</source>
        <extracomment>result sheet: why a print failed</extracomment>
        <translation>Der Drucker hat den Auftrag abgebrochen.</translation>
    </message>
    <message id="1215s">
        <source>Nr.</source>
        <extracomment>Result sheet: label of a setting; the exam follows: 'No.: Exam 3'</extracomment>
        <translation>Nr.</translation>
    </message>
    <message id="1217s">
        <source>Instrumente</source>
        <extracomment>Result sheet: label of a setting, several instruments</extracomment>
        <translation>Instrumente</translation>
    </message>
    <message id="1226s">
        <source>Grundton</source>
        <extracomment>Result sheet: label of a setting; 1234 and the choice follow: 'Keynote: sounds along – no'</extracomment>
        <translation>Grundton</translation>
    </message>
    <message id="1229s">
        <source>Aufgabe</source>
        <extracomment>Result sheet: label of a setting</extracomment>
        <translation>Aufgabe</translation>
    </message>
    <message id="1230s">
        <source>Genauigkeit</source>
        <extracomment>Result sheet: label of a setting</extracomment>
        <translation>Genauigkeit</translation>
    </message>
    <message id="1232s">
        <source>Ton 2 auf Stufen</source>
        <extracomment>Result sheet: label of a setting</extracomment>
        <translation>Ton 2 auf Stufen</translation>
    </message>
    <message id="1234s">
        <source>zusätzlich</source>
        <extracomment>Result sheet: stands with a blank before the choice whether the keynote sounds along</extracomment>
        <translation>zusätzlich</translation>
    </message>
    <message id="1235s">
        <source>Name:</source>
        <extracomment>Result sheet: label of a personal field</extracomment>
        <translation>Name:</translation>
    </message>
    <message id="1236s">
        <source>Vorname:</source>
        <extracomment>Result sheet: label of a personal field</extracomment>
        <translation>Vorname:</translation>
    </message>
    <message id="1237s">
        <source>Matrikel-Nr.:</source>
        <extracomment>Result sheet: label of a personal field</extracomment>
        <translation>Matrikel-Nr.:</translation>
    </message>
    <message id="1238s">
        <source>%1 von %2</source>
        <extracomment>Result sheet: tasks of a test, %1 done of %2</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message id="1239s">
        <source>Aufgaben</source>
        <extracomment>Result sheet: behind a number of tasks, 0 or more than 1</extracomment>
        <translation>Aufgaben</translation>
    </message>
    <message id="1245s">
        <source>Aufgabe</source>
        <extracomment>Result sheet: behind the number 1</extracomment>
        <translation>Aufgabe</translation>
    </message>
    <message id="1246s">
        <source>in %1</source>
        <extracomment>Result sheet: working time, %1 is '4 min 12 s'</extracomment>
        <translation>in %1</translation>
    </message>
    <message id="1247s">
        <source>richtig</source>
        <extracomment>Result sheet: behind the number of right answers</extracomment>
        <translation>richtig</translation>
    </message>
    <message id="1248s">
        <source>falsch</source>
        <extracomment>Result sheet: behind the number of wrong answers</extracomment>
        <translation>falsch</translation>
    </message>
    <message id="1249s">
        <source>h</source>
        <extracomment>Result sheet: unit behind the hours of working time</extracomment>
        <translation>h</translation>
    </message>
    <message id="1250s">
        <source>gesperrt</source>
        <extracomment>Mark in the corner of a locked group of settings</extracomment>
        <translation>gesperrt</translation>
    </message>
    <message id="1251s">
        <source>Ja</source>
        <extracomment>Button of a question</extracomment>
        <translation>Ja</translation>
    </message>
    <message id="1252s">
        <source>Nein</source>
        <extracomment>Button of a question</extracomment>
        <translation>Nein</translation>
    </message>
    <message id="1253s">
        <source>Was möchten Sie üben?</source>
        <extracomment>First window: its question</extracomment>
        <translation>Was möchten Sie üben?</translation>
    </message>
    <message id="1254s">
        <source>Tonale Intervalle sukzessiv, also nacheinander</source>
        <extracomment>First window: below the question</extracomment>
        <translation>Tonale Intervalle sukzessiv, also nacheinander</translation>
    </message>
    <message id="1255s">
        <source>Bereich</source>
        <extracomment>First window: title of the group with ear training and music theory</extracomment>
        <translation>Bereich</translation>
    </message>
    <message id="1256s">
        <source>Sie hören die Aufgabe</source>
        <extracomment>First window: explains ear training</extracomment>
        <translation>Sie hören die Aufgabe</translation>
    </message>
    <message id="1257s">
        <source>Sie lesen die Aufgabe</source>
        <extracomment>First window: explains music theory</extracomment>
        <translation>Sie lesen die Aufgabe</translation>
    </message>
    <message id="1258s">
        <source>die Intervalle einer Reihe benennen</source>
        <extracomment>First window: explains the exercise</extracomment>
        <translation>die Intervalle einer Reihe benennen</translation>
    </message>
    <message id="1259s">
        <source>eine Tonhöhe mit dem Regler treffen</source>
        <extracomment>First window: explains the exercise</extracomment>
        <translation>eine Tonhöhe mit dem Regler treffen</translation>
    </message>
    <message id="1260s">
        <source>die Reihe auf der Klaviatur nachspielen</source>
        <extracomment>First window: explains the exercise</extracomment>
        <translation>die Reihe auf der Klaviatur nachspielen</translation>
    </message>
    <message id="1261s">
        <source>die Reihe in Noten schreiben</source>
        <extracomment>First window: explains the exercise</extracomment>
        <translation>die Reihe in Noten schreiben</translation>
    </message>
    <message id="1280s">
        <source>Auf diesem Rechner ist keine Tonausgabe verfügbar. Die Übung läuft weiter, bleibt aber stumm. Schließen Sie Lautsprecher oder Kopfhörer an, oder starten Sie das Programm mit --midi N, der Nummer eines MIDI-Geräts.</source>
        <translation>Auf diesem Rechner ist keine Tonausgabe verfügbar. Die Übung läuft weiter, bleibt aber stumm. Schließen Sie Lautsprecher oder Kopfhörer an, oder starten Sie das Programm mit --midi N, der Nummer eines MIDI-Geräts.</translation>
    </message>
    <message id="1281s">
        <source>Die Klangbibliothek (SoundFont) fehlt. Die Übung läuft weiter, bleibt aber stumm. Installieren Sie das Paket „timgm6mb-soundfont“.</source>
        <translation>Die Klangbibliothek (SoundFont) fehlt. Die Übung läuft weiter, bleibt aber stumm. Installieren Sie das Paket „timgm6mb-soundfont“.</translation>
    </message>
    <message id="1282s">
        <source>Hilfe</source>
        <translation>Hilfe</translation>
    </message>
    <message id="1283s">
        <source>Wählen Sie links den Bereich und rechts die Übungsart. „OK“ führt zu den Einstellungen, „ENDE“ beendet das Programm.</source>
        <translation>Wählen Sie links den Bereich und rechts die Übungsart. „OK“ führt zu den Einstellungen, „ENDE“ beendet das Programm.</translation>
    </message>
    <message id="1284s">
        <source>Gelbe Gruppen sind frei wählbar, rote sind durch den Übungsmodus festgelegt, blaue betreffen Tempo und Klang. Zeigen Sie mit der Maus auf etwas Graues, um zu erfahren, warum es nicht wählbar ist. „Klangprobe“ spielt einige Töne mit Ihrem Instrument und Tempo. „OK“ beginnt die Übung.</source>
        <translation>Gelbe Gruppen sind frei wählbar, rote sind durch den Übungsmodus festgelegt, blaue betreffen Tempo und Klang. Zeigen Sie mit der Maus auf etwas Graues, um zu erfahren, warum es nicht wählbar ist. „Klangprobe“ spielt einige Töne mit Ihrem Instrument und Tempo. „OK“ beginnt die Übung.</translation>
    </message>
    <message id="1285s">
        <source>Eine Tonreihe erklingt. Benennen Sie die Intervalle der Reihe nach mit den Schaltflächen oder den Tasten, die darauf stehen. „wiederholen“ spielt die Reihe noch einmal, „Grundton-Kontrolle“ den Akkord des Grundtons. Ist die Reihe fertig, hören Sie sie zur Kontrolle, dann geht es weiter; in Test und Prüfung geht es gleich weiter. „zurück“ beendet die Übung und zeigt das Ergebnis; in Test und Prüfung wird vorher gefragt.</source>
        <translation>Eine Tonreihe erklingt. Benennen Sie die Intervalle der Reihe nach mit den Schaltflächen oder den Tasten, die darauf stehen. „wiederholen“ spielt die Reihe noch einmal, „Grundton-Kontrolle“ den Akkord des Grundtons. Ist die Reihe fertig, hören Sie sie zur Kontrolle, dann geht es weiter; in Test und Prüfung geht es gleich weiter. „zurück“ beendet die Übung und zeigt das Ergebnis; in Test und Prüfung wird vorher gefragt.</translation>
    </message>
    <message id="1286s">
        <source>Das Ergebnisblatt sagt, wie viele Aufgaben Sie in welcher Zeit beantwortet haben. Wurde gewertet, zeigt es für jede Stufe oder jedes Intervall einen Prozentwert in fünf Farben von rot (unter 20 %) bis grün (ab 80 %); freies Üben wird nicht gewertet. „Drucken“ bringt es auf eine Seite oder in eine PDF-Datei.</source>
        <translation>Das Ergebnisblatt sagt, wie viele Aufgaben Sie in welcher Zeit beantwortet haben. Wurde gewertet, zeigt es für jede Stufe oder jedes Intervall einen Prozentwert in fünf Farben von rot (unter 20 %) bis grün (ab 80 %); freies Üben wird nicht gewertet. „Drucken“ bringt es auf eine Seite oder in eine PDF-Datei.</translation>
    </message>
    <message id="1290s">
        <source>nachbilden</source>
        <translation>nachbilden</translation>
    </message>
    <message id="1291s">
        <source>erst alle drei Töne hören</source>
        <translation>erst alle drei Töne hören</translation>
    </message>
    <message id="1292s">
        <source>nur nach dem Intervallnamen</source>
        <translation>nur nach dem Intervallnamen</translation>
    </message>
    <message id="1293s">
        <source>richtig: bis %1 Schritte (%2 Cent)</source>
        <translation>richtig: bis %1 Schritte (%2 Cent)</translation>
    </message>
    <message id="1294s">
        <source>richtig: nur genau (0 Schritte)</source>
        <translation>richtig: nur genau (0 Schritte)</translation>
    </message>
    <message id="1295s">
        <source>zum Bilden noch nicht verfügbar</source>
        <translation>zum Bilden noch nicht verfügbar</translation>
    </message>
    <message id="1296s">
        <source>Gelbe Gruppen sind frei wählbar, rote sind durch den Übungsmodus festgelegt, blaue betreffen Tempo und Klang. Bei „nachbilden“ hören Sie erst alle drei Töne und formen den dritten dann nach. Bei „bilden“ formen Sie ihn nur nach dem Namen des Intervalls. Die Genauigkeit sagt, wie weit der Ton danebenliegen darf; 32 Schritte des Reglers sind ein Halbton. „Klangprobe“ spielt einige Töne mit Ihrem Instrument und Tempo. „OK“ beginnt die Übung.</source>
        <translation>Gelbe Gruppen sind frei wählbar, rote sind durch den Übungsmodus festgelegt, blaue betreffen Tempo und Klang. Bei „nachbilden“ hören Sie erst alle drei Töne und formen den dritten dann nach. Bei „bilden“ formen Sie ihn nur nach dem Namen des Intervalls. Die Genauigkeit sagt, wie weit der Ton danebenliegen darf; 32 Schritte des Reglers sind ein Halbton. „Klangprobe“ spielt einige Töne mit Ihrem Instrument und Tempo. „OK“ beginnt die Übung.</translation>
    </message>
    <message id="1315s">
        <source>Fertig</source>
        <translation>Fertig</translation>
    </message>
    <message id="1316s">
        <source>Bilden Sie: %1</source>
        <translation>Bilden Sie: %1</translation>
    </message>
    <message id="1317s">
        <source>Bewegen Sie den Regler, bis der Ton stimmt, und drücken Sie „Fertig“.</source>
        <translation>Bewegen Sie den Regler, bis der Ton stimmt, und drücken Sie „Fertig“.</translation>
    </message>
    <message id="1318s">
        <source>Bewegen Sie zuerst den Regler.</source>
        <translation>Bewegen Sie zuerst den Regler.</translation>
    </message>
    <message id="1319s">
        <source>Die Kontrollwiedergabe spielt erst Ihren Ton, dann den richtigen.</source>
        <translation>Die Kontrollwiedergabe spielt erst Ihren Ton, dann den richtigen.</translation>
    </message>
    <message id="1320s">
        <source>%1 Schritte zu hoch, +%2 Cent</source>
        <translation>%1 Schritte zu hoch, +%2 Cent</translation>
    </message>
    <message id="1321s">
        <source>1 Schritt zu hoch, +%1 Cent</source>
        <translation>1 Schritt zu hoch, +%1 Cent</translation>
    </message>
    <message id="1322s">
        <source>%1 Schritte zu tief, −%2 Cent</source>
        <translation>%1 Schritte zu tief, −%2 Cent</translation>
    </message>
    <message id="1323s">
        <source>1 Schritt zu tief, −%1 Cent</source>
        <translation>1 Schritt zu tief, −%1 Cent</translation>
    </message>
    <message id="1324s">
        <source>genau getroffen, 0 Cent</source>
        <translation>genau getroffen, 0 Cent</translation>
    </message>
    <message id="1325s">
        <source>tiefer</source>
        <translation>tiefer</translation>
    </message>
    <message id="1326s">
        <source>höher</source>
        <translation>höher</translation>
    </message>
    <message id="1327s">
        <source>Pfeiltasten: ein Schritt · Bild auf/ab: fünf</source>
        <translation>Pfeiltasten: ein Schritt · Bild auf/ab: fünf</translation>
    </message>
    <message id="1328s">
        <source>Aufgabe fertig.</source>
        <translation>Aufgabe fertig.</translation>
    </message>
    <message id="1329s">
        <source>Zwei Töne erklingen, der dritte klingt weiter. Bewegen Sie den Regler mit der Maus oder den Pfeiltasten, bis der dritte Ton stimmt, und drücken Sie „Fertig“. Vier falsche Versuche beenden die Aufgabe. „wiederholen“ spielt die Aufgabe noch einmal; danach spielt „Kontrollwiedergabe“ erst Ihren Ton, dann den richtigen.</source>
        <translation>Zwei Töne erklingen, der dritte klingt weiter. Bewegen Sie den Regler mit der Maus oder den Pfeiltasten, bis der dritte Ton stimmt, und drücken Sie „Fertig“. Vier falsche Versuche beenden die Aufgabe. „wiederholen“ spielt die Aufgabe noch einmal; danach spielt „Kontrollwiedergabe“ erst Ihren Ton, dann den richtigen.</translation>
    </message>
    <message id="1330s">
        <source>Hilfe schließen</source>
        <translation>Hilfe schließen</translation>
    </message>
    <message id="1331s">
        <source>Dieses Training ist zu Ende. Das früher gespeicherte Training dieser Übung kann damit nicht mehr fortgesetzt werden.</source>
        <translation>Dieses Training ist zu Ende. Das früher gespeicherte Training dieser Übung kann damit nicht mehr fortgesetzt werden.</translation>
    </message>
    <message id="1332s">
        <source>Spielen Sie Ton %1</source>
        <translation>Spielen Sie Ton %1</translation>
    </message>
    <message id="1333s">
        <source>Die Taste klingt; das Feld auf der Taste sagt, wie der Ton geschrieben ist.</source>
        <translation>Die Taste klingt; das Feld auf der Taste sagt, wie der Ton geschrieben ist.</translation>
    </message>
    <message id="1334s">
        <source>Klicken Sie auf das Feld der Taste. Pfeiltasten wählen ein Feld, die Eingabetaste spielt es.</source>
        <translation>Klicken Sie auf das Feld der Taste. Pfeiltasten wählen ein Feld, die Eingabetaste spielt es.</translation>
    </message>
    <message id="1335s">
        <source>Ton 1 ist der Grundton. Jede Taste gilt, das Feld muss stimmen.</source>
        <translation>Ton 1 ist der Grundton. Jede Taste gilt, das Feld muss stimmen.</translation>
    </message>
    <message id="1336s">
        <source>unteres Feld</source>
        <translation>unteres Feld</translation>
    </message>
    <message id="1337s">
        <source>mittleres Feld</source>
        <translation>mittleres Feld</translation>
    </message>
    <message id="1338s">
        <source>oberes Feld</source>
        <translation>oberes Feld</translation>
    </message>
    <message id="1339s">
        <source>Subkontra-Oktave</source>
        <translation>Subkontra-Oktave</translation>
    </message>
    <message id="1340s">
        <source>Kontra-Oktave</source>
        <translation>Kontra-Oktave</translation>
    </message>
    <message id="1341s">
        <source>große Oktave</source>
        <translation>große Oktave</translation>
    </message>
    <message id="1342s">
        <source>kleine Oktave</source>
        <translation>kleine Oktave</translation>
    </message>
    <message id="1343s">
        <source>eingestrichene Oktave</source>
        <translation>eingestrichene Oktave</translation>
    </message>
    <message id="1344s">
        <source>zweigestrichene Oktave</source>
        <translation>zweigestrichene Oktave</translation>
    </message>
    <message id="1345s">
        <source>dreigestrichene Oktave</source>
        <translation>dreigestrichene Oktave</translation>
    </message>
    <message id="1346s">
        <source>viergestrichene Oktave</source>
        <translation>viergestrichene Oktave</translation>
    </message>
    <message id="1348s">
        <source>Richtige Taste, andere Schreibweise: gesucht war %1.</source>
        <translation>Richtige Taste, andere Schreibweise: gesucht war %1.</translation>
    </message>
    <message id="1349s">
        <source>Richtiger Ton, andere Lage: gesucht war %1.</source>
        <translation>Richtiger Ton, andere Lage: gesucht war %1.</translation>
    </message>
    <message id="1350s">
        <source>Das Feld stimmt nicht: Ton 1 schreibt man %1.</source>
        <translation>Das Feld stimmt nicht: Ton 1 schreibt man %1.</translation>
    </message>
    <message id="1351s">
        <source>%1-Dur</source>
        <translation>%1-Dur</translation>
    </message>
    <message id="1352s">
        <source>%1-moll</source>
        <translation>%1-moll</translation>
    </message>
    <message id="1353s">
        <source>%1-Dur-moll</source>
        <translation>%1-Dur-moll</translation>
    </message>
    <message id="1354s">
        <source>Eine Tonreihe erklingt. Spielen Sie sie Ton für Ton auf der Klaviatur nach. Die Taste sagt die Tonhöhe, das Feld auf der Taste die Schreibweise. Der erste Ton ist der Grundton; bei ihm zählt nur das Feld. Vier falsche Tasten beenden einen Ton; eine andere Schreibweise oder Lage führt weiter, zählt aber nicht als richtig. Pfeiltasten, Bild auf und Bild ab wählen ein Feld, die Eingabetaste spielt es. „wiederholen“ spielt die Reihe noch einmal, „Grundton-Kontrolle“ den Akkord des Grundtons.</source>
        <translation>Eine Tonreihe erklingt. Spielen Sie sie Ton für Ton auf der Klaviatur nach. Die Taste sagt die Tonhöhe, das Feld auf der Taste die Schreibweise. Der erste Ton ist der Grundton; bei ihm zählt nur das Feld. Vier falsche Tasten beenden einen Ton; eine andere Schreibweise oder Lage führt weiter, zählt aber nicht als richtig. Pfeiltasten, Bild auf und Bild ab wählen ein Feld, die Eingabetaste spielt es. „wiederholen“ spielt die Reihe noch einmal, „Grundton-Kontrolle“ den Akkord des Grundtons.</translation>
    </message>
    <message id="1355s">
        <source>Klaviatur</source>
        <translation>Klaviatur</translation>
    </message>
    <message id="1357s">
        <source>Ton %1</source>
        <translation>Ton %1</translation>
    </message>
    <message id="1360s">
        <source>feses</source>
        <extracomment>Name of a tone as it is printed on the piano keys: short. One that ends in b or # after a stem has these letters printed as accidentals</extracomment>
        <translation>feses</translation>
    </message>
    <message id="1361s">
        <source>ceses</source>
        <translation>ceses</translation>
    </message>
    <message id="1362s">
        <source>geses</source>
        <translation>geses</translation>
    </message>
    <message id="1363s">
        <source>deses</source>
        <translation>deses</translation>
    </message>
    <message id="1364s">
        <source>ases</source>
        <translation>ases</translation>
    </message>
    <message id="1365s">
        <source>eses</source>
        <translation>eses</translation>
    </message>
    <message id="1366s">
        <source>heses</source>
        <translation>heses</translation>
    </message>
    <message id="1367s">
        <source>fes</source>
        <translation>fes</translation>
    </message>
    <message id="1368s">
        <source>ces</source>
        <translation>ces</translation>
    </message>
    <message id="1369s">
        <source>ges</source>
        <translation>ges</translation>
    </message>
    <message id="1370s">
        <source>des</source>
        <translation>des</translation>
    </message>
    <message id="1371s">
        <source>as</source>
        <translation>as</translation>
    </message>
    <message id="1372s">
        <source>es</source>
        <translation>es</translation>
    </message>
    <message id="1373s">
        <source>b</source>
        <translation>b</translation>
    </message>
    <message id="1374s">
        <source>f</source>
        <translation>f</translation>
    </message>
    <message id="1375s">
        <source>c</source>
        <translation>c</translation>
    </message>
    <message id="1376s">
        <source>g</source>
        <translation>g</translation>
    </message>
    <message id="1377s">
        <source>d</source>
        <translation>d</translation>
    </message>
    <message id="1378s">
        <source>a</source>
        <translation>a</translation>
    </message>
    <message id="1379s">
        <source>e</source>
        <translation>e</translation>
    </message>
    <message id="1380s">
        <source>h</source>
        <translation>h</translation>
    </message>
    <message id="1381s">
        <source>fis</source>
        <translation>fis</translation>
    </message>
    <message id="1382s">
        <source>cis</source>
        <translation>cis</translation>
    </message>
    <message id="1383s">
        <source>gis</source>
        <translation>gis</translation>
    </message>
    <message id="1384s">
        <source>dis</source>
        <translation>dis</translation>
    </message>
    <message id="1385s">
        <source>ais</source>
        <translation>ais</translation>
    </message>
    <message id="1386s">
        <source>eis</source>
        <translation>eis</translation>
    </message>
    <message id="1387s">
        <source>his</source>
        <translation>his</translation>
    </message>
    <message id="1388s">
        <source>fisis</source>
        <translation>fisis</translation>
    </message>
    <message id="1389s">
        <source>cisis</source>
        <translation>cisis</translation>
    </message>
    <message id="1390s">
        <source>gisis</source>
        <translation>gisis</translation>
    </message>
    <message id="1391s">
        <source>disis</source>
        <translation>disis</translation>
    </message>
    <message id="1392s">
        <source>aisis</source>
        <translation>aisis</translation>
    </message>
    <message id="1393s">
        <source>eisis</source>
        <translation>eisis</translation>
    </message>
    <message id="1394s">
        <source>hisis</source>
        <translation>hisis</translation>
    </message>
</context>
</TS>
