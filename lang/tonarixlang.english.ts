<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name></name>
    <message id="1s">
        <source>Drucken</source>
        <extracomment>Result sheet: button</extracomment>
        <translation>Print</translation>
    </message>
    <message id="8s">
        <source>Training speichern</source>
        <extracomment>Title of the yes-or-no box when a training is left</extracomment>
        <translation>Save training</translation>
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
        <translation>Octave</translation>
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
        <translation>a sharp</translation>
    </message>
    <message id="71s">
        <source>Ais</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 25</extracomment>
        <translation>A sharp</translation>
    </message>
    <message id="72s">
        <source>aisis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 32</extracomment>
        <translation>a double sharp</translation>
    </message>
    <message id="74s">
        <source>as</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 11</extracomment>
        <translation>a flat</translation>
    </message>
    <message id="75s">
        <source>As</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 11</extracomment>
        <translation>A flat</translation>
    </message>
    <message id="76s">
        <source>ases</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 4</extracomment>
        <translation>a double flat</translation>
    </message>
    <message id="82s">
        <source>abwärts</source>
        <extracomment>Direction behind an interval name: 'Major third downward'</extracomment>
        <translation>downward</translation>
    </message>
    <message id="83s">
        <source>abwärts</source>
        <extracomment>Result sheet: head of the column of falling intervals</extracomment>
        <translation>Downward</translation>
    </message>
    <message id="109s">
        <source>Anwender</source>
        <extracomment>Result sheet: label of the user of the computer; a colon follows</extracomment>
        <translation>User</translation>
    </message>
    <message id="129s">
        <source>nächste Aufgabe</source>
        <extracomment>Exercise window: button and notice for the next task; a number may follow</extracomment>
        <translation>Next task</translation>
    </message>
    <message id="131s">
        <source>aufwärts</source>
        <extracomment>Direction behind an interval name: 'Major third upward'</extracomment>
        <translation>upward</translation>
    </message>
    <message id="132s">
        <source>aufwärts</source>
        <extracomment>Result sheet: head of the column of rising intervals</extracomment>
        <translation>Upward</translation>
    </message>
    <message id="136s">
        <source>Freies Üben</source>
        <extracomment>Settings: exercise level without saving or score</extracomment>
        <translation>Free practice</translation>
    </message>
    <message id="144s">
        <source>b</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 13</extracomment>
        <translation>b flat</translation>
    </message>
    <message id="145s">
        <source>B</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 13</extracomment>
        <translation>B flat</translation>
    </message>
    <message id="154s">
        <source>bestimmen</source>
        <extracomment>First window: kind of exercise (name the intervals heard or read)</extracomment>
        <translation>Identify</translation>
    </message>
    <message id="159s">
        <source>Bilde...</source>
        <extracomment>Build exercise: heading over the interval to form</extracomment>
        <translation>Build...</translation>
    </message>
    <message id="160s">
        <source>bilden</source>
        <extracomment>First window: kind of exercise (form a tone with the pitch slider)</extracomment>
        <translation>Build</translation>
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
        <translation>c sharp</translation>
    </message>
    <message id="174s">
        <source>Cis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 22</extracomment>
        <translation>C sharp</translation>
    </message>
    <message id="175s">
        <source>cisis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 29</extracomment>
        <translation>c double sharp</translation>
    </message>
    <message id="180s">
        <source>Ces</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 8</extracomment>
        <translation>C flat</translation>
    </message>
    <message id="181s">
        <source>ces</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 8</extracomment>
        <translation>c flat</translation>
    </message>
    <message id="182s">
        <source>ceses</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 1</extracomment>
        <translation>c double flat</translation>
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
        <translation>d sharp</translation>
    </message>
    <message id="186s">
        <source>Dis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 24</extracomment>
        <translation>D sharp</translation>
    </message>
    <message id="187s">
        <source>disis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 31</extracomment>
        <translation>d double sharp</translation>
    </message>
    <message id="189s">
        <source>Datum</source>
        <extracomment>Result sheet: label of the date; a colon follows</extracomment>
        <translation>Date</translation>
    </message>
    <message id="190s">
        <source>des</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 10</extracomment>
        <translation>d flat</translation>
    </message>
    <message id="191s">
        <source>Des</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 10</extracomment>
        <translation>D flat</translation>
    </message>
    <message id="192s">
        <source>deses</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 3</extracomment>
        <translation>d double flat</translation>
    </message>
    <message id="196s">
        <source>Der gespeicherte Stand kann nicht geladen werden:</source>
        <extracomment>Warning when a saved training cannot be restored; the name of the level follows behind a blank</extracomment>
        <translation>The saved state cannot be loaded:</translation>
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
        <translation>e sharp</translation>
    </message>
    <message id="214s">
        <source>Eis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 26</extracomment>
        <translation>E sharp</translation>
    </message>
    <message id="215s">
        <source>eisis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 33</extracomment>
        <translation>e double sharp</translation>
    </message>
    <message id="218s">
        <source>es</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 12</extracomment>
        <translation>e flat</translation>
    </message>
    <message id="219s">
        <source>Es</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 12</extracomment>
        <translation>E flat</translation>
    </message>
    <message id="220s">
        <source>eses</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 5</extracomment>
        <translation>e double flat</translation>
    </message>
    <message id="221s">
        <source>Gehörbildung</source>
        <extracomment>Kind of study in window titles</extracomment>
        <translation>Ear training</translation>
    </message>
    <message id="223s">
        <source>ENDE</source>
        <extracomment>First window: button that ends the program</extracomment>
        <translation>Quit</translation>
    </message>
    <message id="224s">
        <source>Musiklehre</source>
        <extracomment>Kind of study in window titles</extracomment>
        <translation>Music theory</translation>
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
        <translation>f sharp</translation>
    </message>
    <message id="229s">
        <source>Fis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 21</extracomment>
        <translation>F sharp</translation>
    </message>
    <message id="230s">
        <source>fisis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 28</extracomment>
        <translation>f double sharp</translation>
    </message>
    <message id="232s">
        <source>Falsch</source>
        <extracomment>Heading of the count of wrong answers, and what an answer field says after a wrong answer</extracomment>
        <translation>Wrong</translation>
    </message>
    <message id="234s">
        <source>fes</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 7</extracomment>
        <translation>f flat</translation>
    </message>
    <message id="235s">
        <source>Fes</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 7</extracomment>
        <translation>F flat</translation>
    </message>
    <message id="236s">
        <source>feses</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 0</extracomment>
        <translation>f double flat</translation>
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
        <translation>g sharp</translation>
    </message>
    <message id="252s">
        <source>Gis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 23</extracomment>
        <translation>G sharp</translation>
    </message>
    <message id="253s">
        <source>gisis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 30</extracomment>
        <translation>g double sharp</translation>
    </message>
    <message id="260s">
        <source>g2</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>M2</translation>
    </message>
    <message id="261s">
        <source>g3</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>M3</translation>
    </message>
    <message id="262s">
        <source>g6</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>M6</translation>
    </message>
    <message id="263s">
        <source>g7</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>M7</translation>
    </message>
    <message id="267s">
        <source>ges</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 9</extracomment>
        <translation>g flat</translation>
    </message>
    <message id="268s">
        <source>Ges</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 9</extracomment>
        <translation>G flat</translation>
    </message>
    <message id="269s">
        <source>geses</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 2</extracomment>
        <translation>g double flat</translation>
    </message>
    <message id="271s">
        <source>gebildete Tonhöhe</source>
        <extracomment>Build exercise: caption of the pitch the student formed</extracomment>
        <translation>Your pitch</translation>
    </message>
    <message id="275s">
        <source>Gesamt:</source>
        <extracomment>Result sheet: label of the total percentage, with its colon</extracomment>
        <translation>Total:</translation>
    </message>
    <message id="281s">
        <source>große Sekunde</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Major second</translation>
    </message>
    <message id="282s">
        <source>große Septime</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Major seventh</translation>
    </message>
    <message id="283s">
        <source>große Sexte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Major sixth</translation>
    </message>
    <message id="284s">
        <source>große Terz</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Major third</translation>
    </message>
    <message id="287s">
        <source>Übungsart</source>
        <extracomment>Start of the title of the first window: 'Exercise type: tonal intervals ...'</extracomment>
        <translation>Exercise type</translation>
    </message>
    <message id="291s">
        <source>tonale Intervalle (sukzessiv) bestimmen</source>
        <extracomment>Title of the exercise window, also behind the kind of study in the title of the settings</extracomment>
        <translation>Identify tonal intervals in succession</translation>
    </message>
    <message id="292s">
        <source>tonale Intervalle sukzessiv bilden</source>
        <extracomment>Title of the exercise window, also behind the kind of study in the title of the settings</extracomment>
        <translation>Build tonal intervals in succession</translation>
    </message>
    <message id="293s">
        <source>Töne nachspielen</source>
        <extracomment>Title of the exercise window, also behind the kind of study in the title of the settings</extracomment>
        <translation>Play back the tones</translation>
    </message>
    <message id="297s">
        <source>Grundton</source>
        <extracomment>Exercise window: what the first tone is ('Tone: keynote')</extracomment>
        <translation>keynote</translation>
    </message>
    <message id="300s">
        <source>Grundton-Kontrolle</source>
        <extracomment>Exercise window: button, plays the keynote chord</extracomment>
        <translation>Keynote check</translation>
    </message>
    <message id="303s">
        <source>H</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 20</extracomment>
        <translation>B</translation>
    </message>
    <message id="304s">
        <source>h</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 20</extracomment>
        <translation>b</translation>
    </message>
    <message id="305s">
        <source>His</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 27</extracomment>
        <translation>B sharp</translation>
    </message>
    <message id="306s">
        <source>his</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 27</extracomment>
        <translation>b sharp</translation>
    </message>
    <message id="307s">
        <source>hisis</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 34</extracomment>
        <translation>b double sharp</translation>
    </message>
    <message id="316s">
        <source>heses</source>
        <extracomment>Tone name, lower-case form (small octave and higher), line of fifths place 6</extracomment>
        <translation>b double flat</translation>
    </message>
    <message id="319s">
        <source>hoch</source>
        <extracomment>Settings: accuracy asked of the tone formed with the pitch slider</extracomment>
        <translation>High</translation>
    </message>
    <message id="341s">
        <source>Töne</source>
        <extracomment>Settings: whose instrument is being chosen (the tones of the row)</extracomment>
        <translation>Tones</translation>
    </message>
    <message id="345s">
        <source>Transposition</source>
        <extracomment>Settings: list of transpositions; a colon and the direction follow</extracomment>
        <translation>Transposition</translation>
    </message>
    <message id="349s">
        <source>k2</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>m2</translation>
    </message>
    <message id="350s">
        <source>k3</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>m3</translation>
    </message>
    <message id="351s">
        <source>k6</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>m6</translation>
    </message>
    <message id="352s">
        <source>k7</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>m7</translation>
    </message>
    <message id="358s">
        <source>kleine Sekunde</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Minor second</translation>
    </message>
    <message id="359s">
        <source>kleine Septime</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Minor seventh</translation>
    </message>
    <message id="360s">
        <source>kleine Sexte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Minor sixth</translation>
    </message>
    <message id="361s">
        <source>kleine Terz</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Minor third</translation>
    </message>
    <message id="370s">
        <source>Kontrollwiedergabe</source>
        <extracomment>Build exercise: button, plays the student's tone and then the target</extracomment>
        <translation>Compare</translation>
    </message>
    <message id="394s">
        <source>min</source>
        <extracomment>Test: unit behind the minutes left</extracomment>
        <translation>min</translation>
    </message>
    <message id="400s">
        <source>mittel</source>
        <extracomment>Settings: accuracy asked of the tone formed with the pitch slider</extracomment>
        <translation>Medium</translation>
    </message>
    <message id="401s">
        <source>mitteltönig (Kirnberger)</source>
        <extracomment>Build exercise: tuning in force</extracomment>
        <translation>Meantone (Kirnberger)</translation>
    </message>
    <message id="413s">
        <source>abwärts</source>
        <extracomment>Settings: list of transpositions, direction down</extracomment>
        <translation>downward</translation>
    </message>
    <message id="416s">
        <source>Nun den dritten Ton nachbilden</source>
        <extracomment>Build exercise: what is heard now, two tones, the third is to be formed after them</extracomment>
        <translation>Now form the third tone yourself</translation>
    </message>
    <message id="421s">
        <source>keine Transposition</source>
        <extracomment>Settings: list of transpositions, none</extracomment>
        <translation>No transposition</translation>
    </message>
    <message id="424s">
        <source>niedrig</source>
        <extracomment>Settings: accuracy asked of the tone formed with the pitch slider</extracomment>
        <translation>Low</translation>
    </message>
    <message id="426s">
        <source>Prüfung</source>
        <extracomment>Settings: list of the exams, a blank and a number from 1 to 5 follow</extracomment>
        <translation>Exam</translation>
    </message>
    <message id="432s">
        <source>OK</source>
        <extracomment>Button that accepts: first window, settings, and the answer of the build exercise</extracomment>
        <translation>OK</translation>
    </message>
    <message id="433s">
        <source>andere Lage</source>
        <extracomment>Second half of the first entry of the degree list ('Octave/...': the keynote in another octave); with an exclamation mark the warning that a played tone is right but lies in another octave</extracomment>
        <translation>Other register</translation>
    </message>
    <message id="437s">
        <source>Prime</source>
        <extracomment>Interval name without its quality, in the table of degree names</extracomment>
        <translation>Unison</translation>
    </message>
    <message id="438s">
        <source>Prüfung</source>
        <extracomment>Settings: exercise level, an exam</extracomment>
        <translation>Exam</translation>
    </message>
    <message id="439s">
        <source>Quarte</source>
        <extracomment>Interval name without its quality, in the table of degree names</extracomment>
        <translation>Fourth</translation>
    </message>
    <message id="446s">
        <source>Quinte</source>
        <extracomment>Interval name without its quality, in the table of degree names</extracomment>
        <translation>Fifth</translation>
    </message>
    <message id="449s">
        <source>Prime</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Unison</translation>
    </message>
    <message id="450s">
        <source>Oktave</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Octave</translation>
    </message>
    <message id="451s">
        <source>Quarte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Perfect fourth</translation>
    </message>
    <message id="452s">
        <source>Quinte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Perfect fifth</translation>
    </message>
    <message id="453s">
        <source>r8</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>P8</translation>
    </message>
    <message id="454s">
        <source>r4</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>P4</translation>
    </message>
    <message id="455s">
        <source>r5</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>P5</translation>
    </message>
    <message id="456s">
        <source>r1</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>P1</translation>
    </message>
    <message id="458s">
        <source>rein (pythag.)</source>
        <extracomment>Build exercise: tuning in force</extracomment>
        <translation>Pure (Pythagorean)</translation>
    </message>
    <message id="461s">
        <source>Restzeit:</source>
        <extracomment>Test: stands before the minutes left ('Time left: 3 min 20 s')</extracomment>
        <translation>Time left:</translation>
    </message>
    <message id="462s">
        <source>Restaufgaben</source>
        <extracomment>Test: tasks left; the number stands before or behind it with a blank</extracomment>
        <translation>Remaining tasks</translation>
    </message>
    <message id="468s">
        <source>Richtig</source>
        <extracomment>Heading of the count of right answers</extracomment>
        <translation>Right</translation>
    </message>
    <message id="476s">
        <source>sehr hoch</source>
        <extracomment>Settings: accuracy asked of the tone formed with the pitch slider</extracomment>
        <translation>Very high</translation>
    </message>
    <message id="478s">
        <source>sehr niedrig</source>
        <extracomment>Settings: accuracy asked of the tone formed with the pitch slider</extracomment>
        <translation>Very low</translation>
    </message>
    <message id="480s">
        <source>s</source>
        <extracomment>Test: unit behind the seconds left</extracomment>
        <translation>s</translation>
    </message>
    <message id="481s">
        <source>Sekunde</source>
        <extracomment>Interval name without its quality, in the table of degree names</extracomment>
        <translation>Second</translation>
    </message>
    <message id="483s">
        <source>Ihre gebildete Tonhöhe</source>
        <extracomment>Build exercise: what is heard now in the comparison, the student's pitch</extracomment>
        <translation>Your pitch</translation>
    </message>
    <message id="486s">
        <source>Septime</source>
        <extracomment>Interval name without its quality, in the table of degree names</extracomment>
        <translation>Seventh</translation>
    </message>
    <message id="488s">
        <source>Sexte</source>
        <extracomment>Interval name without its quality, in the table of degree names</extracomment>
        <translation>Sixth</translation>
    </message>
    <message id="495s">
        <source>Soll der Stand des Trainings gespeichert werden?</source>
        <extracomment>Question in a yes-or-no box when a training is left</extracomment>
        <translation>Save the state of this training?</translation>
    </message>
    <message id="496s">
        <source>spielen</source>
        <extracomment>First window: kind of exercise (play the row on the keyboard)</extracomment>
        <translation>Play</translation>
    </message>
    <message id="508s">
        <source>auf Stufe</source>
        <extracomment>Settings: group title 'Tone 2: on degree(n)'; short, a mark stands beside it; '(n)' follows at once</extracomment>
        <translation>on degree</translation>
    </message>
    <message id="544s">
        <source>Die tatsächliche Tonhöhe</source>
        <extracomment>Build exercise: what is heard now in the comparison, the true pitch</extracomment>
        <translation>The actual pitch</translation>
    </message>
    <message id="545s">
        <source>tatsächliche Tonhöhe</source>
        <extracomment>Build exercise: caption of the target pitch</extracomment>
        <translation>Actual pitch</translation>
    </message>
    <message id="546s">
        <source>temperiert</source>
        <extracomment>Build exercise: tuning in force</extracomment>
        <translation>Equal temperament</translation>
    </message>
    <message id="549s">
        <source>Terz</source>
        <extracomment>Interval name without its quality, in the table of degree names</extracomment>
        <translation>Third</translation>
    </message>
    <message id="550s">
        <source>Test</source>
        <extracomment>Settings: exercise level, a measured test</extracomment>
        <translation>Test</translation>
    </message>
    <message id="556s">
        <source>Ton</source>
        <extracomment>Word before the number or the meaning of a tone: 'Tone 2: ...', 'Tone: keynote'</extracomment>
        <translation>Tone</translation>
    </message>
    <message id="561s">
        <source>Schreibweise</source>
        <extracomment>Keyboard and write exercises: warning that the spelling of a tone does not fit the key; exclamation marks follow</extracomment>
        <translation>Spelling</translation>
    </message>
    <message id="564s">
        <source>Training mit Speichern</source>
        <extracomment>Settings: exercise level, a training that can be saved</extracomment>
        <translation>Training with saving</translation>
    </message>
    <message id="565s">
        <source>Training fortsetzen</source>
        <extracomment>Settings: exercise level, goes on with a saved training</extracomment>
        <translation>Continue training</translation>
    </message>
    <message id="573s">
        <source>überm. Prime</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Augmented unison</translation>
    </message>
    <message id="574s">
        <source>überm. Quarte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Augmented fourth</translation>
    </message>
    <message id="575s">
        <source>überm. Quinte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Augmented fifth</translation>
    </message>
    <message id="576s">
        <source>überm. Sekunde</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Augmented second</translation>
    </message>
    <message id="577s">
        <source>überm. Sexte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Augmented sixth</translation>
    </message>
    <message id="578s">
        <source>ü1</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>A1</translation>
    </message>
    <message id="579s">
        <source>ü2</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>A2</translation>
    </message>
    <message id="580s">
        <source>ü4</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>A4</translation>
    </message>
    <message id="581s">
        <source>ü5</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>A5</translation>
    </message>
    <message id="582s">
        <source>ü6</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>A6</translation>
    </message>
    <message id="586s">
        <source>Übungsart</source>
        <extracomment>First window: title of the group of exercise kinds; also a label of the result sheet</extracomment>
        <translation>Exercise type</translation>
    </message>
    <message id="592s">
        <source>v7</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>d7</translation>
    </message>
    <message id="593s">
        <source>verm. Oktave</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Diminished octave</translation>
    </message>
    <message id="594s">
        <source>verm. Quarte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Diminished fourth</translation>
    </message>
    <message id="595s">
        <source>verm. Quinte</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Diminished fifth</translation>
    </message>
    <message id="596s">
        <source>verm. Septime</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Diminished seventh</translation>
    </message>
    <message id="597s">
        <source>verm. Terz</source>
        <extracomment>Interval name: answer buttons, answer fields, lists of degrees and transpositions, result sheet</extracomment>
        <translation>Diminished third</translation>
    </message>
    <message id="598s">
        <source>v3</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>d3</translation>
    </message>
    <message id="599s">
        <source>v4</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>d4</translation>
    </message>
    <message id="600s">
        <source>v5</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>d5</translation>
    </message>
    <message id="602s">
        <source>v8</source>
        <extracomment>Short sign of an interval (perfect, large, small, augmented, diminished, and the number)</extracomment>
        <translation>d8</translation>
    </message>
    <message id="604s">
        <source>variable Tonhöhe</source>
        <extracomment>Build exercise: caption of the pitch slider</extracomment>
        <translation>Adjustable pitch</translation>
    </message>
    <message id="616s">
        <source>Vorgabe: alle drei Töne</source>
        <extracomment>Build exercise: what is heard now, all three tones at their true pitch</extracomment>
        <translation>Model: all three tones</translation>
    </message>
    <message id="623s">
        <source>aufwärts</source>
        <extracomment>Settings: list of transpositions, direction up</extracomment>
        <translation>upward</translation>
    </message>
    <message id="625s">
        <source>weiter</source>
        <extracomment>Button that goes on when all is done: exercise window at the end of a training or test, result sheet</extracomment>
        <translation>Continue</translation>
    </message>
    <message id="629s">
        <source>wiederholen</source>
        <extracomment>Exercise window: button, plays the row again during the task</extracomment>
        <translation>Repeat</translation>
    </message>
    <message id="632s">
        <source>wiederholen (Kontrolle)</source>
        <extracomment>Exercise window: button, plays the row again after the task</extracomment>
        <translation>Repeat (check)</translation>
    </message>
    <message id="633s">
        <source>Antworten</source>
        <extracomment>Build exercise: heading over the answer fields</extracomment>
        <translation>Answers</translation>
    </message>
    <message id="634s">
        <source>Wiederholungen</source>
        <extracomment>Build exercise: heading over the count of repeats</extracomment>
        <translation>Repeats</translation>
    </message>
    <message id="635s">
        <source>Stimmung</source>
        <extracomment>Settings: group title; result sheet: label; build exercise: heading over the tuning in force</extracomment>
        <translation>Tuning</translation>
    </message>
    <message id="640s">
        <source>zurück</source>
        <extracomment>Exercise window: button that leaves the exercise</extracomment>
        <translation>Back</translation>
    </message>
    <message id="641s">
        <source>Grundton</source>
        <extracomment>Settings: whose instrument is being chosen (the keynote sounding along)</extracomment>
        <translation>Keynote</translation>
    </message>
    <message id="648s">
        <source>Aisis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 32</extracomment>
        <translation>A double sharp</translation>
    </message>
    <message id="649s">
        <source>Ases</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 4</extracomment>
        <translation>A double flat</translation>
    </message>
    <message id="651s">
        <source>Cisis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 29</extracomment>
        <translation>C double sharp</translation>
    </message>
    <message id="652s">
        <source>Ceses</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 1</extracomment>
        <translation>C double flat</translation>
    </message>
    <message id="654s">
        <source>Hisis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 34</extracomment>
        <translation>B double sharp</translation>
    </message>
    <message id="655s">
        <source>Heses</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 6</extracomment>
        <translation>B double flat</translation>
    </message>
    <message id="656s">
        <source>Disis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 31</extracomment>
        <translation>D double sharp</translation>
    </message>
    <message id="657s">
        <source>Deses</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 3</extracomment>
        <translation>D double flat</translation>
    </message>
    <message id="659s">
        <source>Eisis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 33</extracomment>
        <translation>E double sharp</translation>
    </message>
    <message id="660s">
        <source>Eses</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 5</extracomment>
        <translation>E double flat</translation>
    </message>
    <message id="663s">
        <source>Fisis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 28</extracomment>
        <translation>F double sharp</translation>
    </message>
    <message id="664s">
        <source>Feses</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 0</extracomment>
        <translation>F double flat</translation>
    </message>
    <message id="666s">
        <source>Gisis</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 30</extracomment>
        <translation>G double sharp</translation>
    </message>
    <message id="667s">
        <source>Geses</source>
        <extracomment>Tone name, upper-case form (great octave and lower), line of fifths place 2</extracomment>
        <translation>G double flat</translation>
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
        <translation>Write</translation>
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
        <translation>to</translation>
    </message>
    <message id="703s">
        <source>!</source>
        <extracomment>Exclamation mark of warnings, written once or twice</extracomment>
        <translation>!</translation>
    </message>
    <message id="705s">
        <source>deutsch</source>
        <extracomment>Language part of the folder and file names of the help texts; lower case, no blanks</extracomment>
        <translation>english</translation>
    </message>
    <message id="715s">
        <source>tonale Intervalle sukzessiv schreiben</source>
        <extracomment>Title of the exercise window, also behind the kind of study in the title of the settings</extracomment>
        <translation>Write tonal intervals in succession</translation>
    </message>
    <message id="720s">
        <source>Es ist ein Fehler aufgetreten.</source>
        <extracomment>Error message, first of four lines</extracomment>
        <translation>An error has occurred.</translation>
    </message>
    <message id="721s">
        <source>Einzelheiten stehen in der Logdatei.</source>
        <extracomment>Error message, second of four lines</extracomment>
        <translation>Details are in the log file.</translation>
    </message>
    <message id="722s">
        <source>Bitte versuchen Sie es noch einmal.</source>
        <extracomment>Error message, third of four lines</extracomment>
        <translation>Please try again.</translation>
    </message>
    <message id="723s">
        <source>Tritt der Fehler wieder auf, melden Sie ihn bitte Ihrer Betreuung.</source>
        <extracomment>Error message, last of four lines</extracomment>
        <translation>If it happens again, please tell your supervisor.</translation>
    </message>
    <message id="724s">
        <source>Gehörbildung</source>
        <extracomment>First window: choice of the kind of study</extracomment>
        <translation>Ear training</translation>
    </message>
    <message id="725s">
        <source>Musiklehre</source>
        <extracomment>First window: choice of the kind of study</extracomment>
        <translation>Music theory</translation>
    </message>
    <message id="832s">
        <source>Ergänzen Sie in beliebiger Reihenfolge die fehlenden
Vorzeichen!</source>
        <extracomment>Settings and keyboard exercise: small notice in two lines</extracomment>
        <translation>Add the missing accidentals
in any order.</translation>
    </message>
    <message id="1000s">
        <source>Deutsch</source>
        <extracomment>Name of the language in its own words, as --language takes it</extracomment>
        <translation>English</translation>
    </message>
    <message id="1001s">
        <source>Hilfe</source>
        <extracomment>First window: button</extracomment>
        <translation>Help</translation>
    </message>
    <message id="1002s">
        <source>noch nicht verfügbar</source>
        <extracomment>First window: why an option has no exercise yet, for a tooltip and a screen reader</extracomment>
        <translation>not available yet</translation>
    </message>
    <message id="1003s">
        <source>tonale Intervalle sukzessiv</source>
        <extracomment>First window: end of its title, behind 'Exercise type: '</extracomment>
        <translation>tonal intervals in succession</translation>
    </message>
    <message id="1004s">
        <source>de</source>
        <extracomment>The language's code, by which the toolkit's own dialogs find theirs: 'de', 'pt_BR'</extracomment>
        <translation>en</translation>
    </message>
    <message id="1010s">
        <source>In den Ordner Ihrer Trainings kann nicht geschrieben werden. Sie können üben, aber gespeicherte Trainings gehen mit dem Programmende verloren. Ordner:</source>
        <extracomment>Message at the start; the folder and the reason follow on lines of their own</extracomment>
        <translation>The folder of your trainings cannot be written to. You can practise, but saved trainings will be lost when the program ends. Folder:</translation>
    </message>
    <message id="1011s">
        <source>Die Datei mit den gespeicherten Trainings ist beschädigt. Eine neue wurde angelegt; die beschädigte bleibt hier erhalten:</source>
        <extracomment>Message at the start; the path follows on the next line</extracomment>
        <translation>The file of saved trainings is damaged. A new one has been made; the damaged one is kept here:</translation>
    </message>
    <message id="1012s">
        <source>Die gespeicherten Trainings können im Augenblick nicht gelesen werden. Sie können üben; speichern lässt sich ein Training erst wieder, wenn diese Datei gelesen werden kann:</source>
        <extracomment>Message at the start; the path and the reason follow on lines of their own</extracomment>
        <translation>The saved trainings cannot be read at the moment. You can practise; a training can be saved again once this file can be read:</translation>
    </message>
    <message id="1013s">
        <source>Die Logdatei kann nicht geschrieben werden. Das Üben wird davon nicht gestört. Bitte prüfen Sie die Schreibrechte im Ordner:</source>
        <extracomment>Message at the start; the folder follows on the next line</extracomment>
        <translation>The log file cannot be written. This does not disturb your practice. Please check the permissions in the folder:</translation>
    </message>
    <message id="1014s">
        <source>Auf dem Datenträger ist kein Platz mehr. Bitte schaffen Sie Platz.</source>
        <extracomment>Why a file or folder could not be used, behind a message that names it</extracomment>
        <translation>There is no space left on the disk. Please free some.</translation>
    </message>
    <message id="1015s">
        <source>Das Recht dazu fehlt.</source>
        <extracomment>Why a file or folder could not be used, behind a message that names it</extracomment>
        <translation>Permission is missing.</translation>
    </message>
    <message id="1016s">
        <source>Den Ordner gibt es nicht.</source>
        <extracomment>Why a file or folder could not be used, behind a message that names it</extracomment>
        <translation>The folder does not exist.</translation>
    </message>
    <message id="1017s">
        <source>Der Datenträger ist schreibgeschützt.</source>
        <extracomment>Why a file or folder could not be used, behind a message that names it</extracomment>
        <translation>The disk is read-only.</translation>
    </message>
    <message id="1018s">
        <source>Fehler Nr. %1</source>
        <extracomment>Why something failed, where no better word is known; %1 is the number of the error</extracomment>
        <translation>Error no. %1</translation>
    </message>
    <message id="1019s">
        <source>Eine unterbrochene Übung kann nicht wiederhergestellt werden, denn die Datei mit ihrem Stand ist beschädigt. Die Datei bleibt hier erhalten:</source>
        <extracomment>Message at the start; the path follows on the next line</extracomment>
        <translation>An interrupted exercise cannot be restored, because the file that holds it is damaged. The file is kept here:</translation>
    </message>
    <message id="1020s">
        <source>Eine unterbrochene Übung kann nicht wiederhergestellt werden, denn die Datei mit ihrem Stand ist leer.</source>
        <translation>An interrupted exercise cannot be restored, because the file that holds it is empty.</translation>
    </message>
    <message id="1030s">
        <source>ab 4 Oktaven Tonraum</source>
        <extracomment>Settings: why an option is greyed, for a tooltip and a screen reader</extracomment>
        <translation>with a tone range of 4 octaves or more</translation>
    </message>
    <message id="1031s">
        <source>nur bei Intervall-Größe „max. 1 Oktave“</source>
        <extracomment>Settings: why an option is greyed, for a tooltip and a screen reader</extracomment>
        <translation>only with the interval size “Up to 1 octave”</translation>
    </message>
    <message id="1032s">
        <source>nur, wenn alle Stufen gewählt sind</source>
        <extracomment>Settings: why an option is greyed, for a tooltip and a screen reader</extracomment>
        <translation>only when all degrees are chosen</translation>
    </message>
    <message id="1033s">
        <source>nur bei Intervall-Anzahl 2</source>
        <extracomment>Settings: why an option is greyed, for a tooltip and a screen reader</extracomment>
        <translation>only with the number of intervals at 2</translation>
    </message>
    <message id="1034s">
        <source>durch die Prüfung festgelegt</source>
        <extracomment>Settings: why a whole group is greyed, for a tooltip and a screen reader</extracomment>
        <translation>set by the exam</translation>
    </message>
    <message id="1035s">
        <source>durch das gespeicherte Training festgelegt</source>
        <extracomment>Settings: why a whole group is greyed, for a tooltip and a screen reader</extracomment>
        <translation>set by the saved training</translation>
    </message>
    <message id="1036s">
        <source>durch den eingelesenen Test festgelegt</source>
        <extracomment>Settings: why a whole group is greyed, for a tooltip and a screen reader</extracomment>
        <translation>set by the test that was read</translation>
    </message>
    <message id="1037s">
        <source>Gespeicherte Trainings lassen sich im Moment nicht lesen.</source>
        <extracomment>Settings: one line while the store does not answer</extracomment>
        <translation>Saved trainings cannot be read at the moment.</translation>
    </message>
    <message id="1038s">
        <source>Das gespeicherte Training ist beschädigt und kann nicht fortgesetzt werden.</source>
        <extracomment>Settings: one line when a saved training is found broken</extracomment>
        <translation>The saved training is damaged and cannot be continued.</translation>
    </message>
    <message id="1040s">
        <source>%1 Gruppen aufgelistet in: %2</source>
        <extracomment>Settings of a supervisor: line that says what a button has done; %1 is a number above 1, %2 the place</extracomment>
        <translation>%1 groups listed in: %2</translation>
    </message>
    <message id="1041s">
        <source>1 Gruppe aufgelistet in: %2</source>
        <extracomment>Settings of a supervisor: line that says what a button has done; %2 is the place</extracomment>
        <translation>1 group listed in: %2</translation>
    </message>
    <message id="1042s">
        <source>Keine Gruppe ist als Prüfung markiert. Leere Liste in: %2</source>
        <extracomment>Settings of a supervisor: line that says what a button has done; %2 is the place</extracomment>
        <translation>No group is marked as an exam. Empty list in: %2</translation>
    </message>
    <message id="1043s">
        <source>Die Liste konnte nicht ausgegeben werden.</source>
        <extracomment>Settings of a supervisor: line that says what a button has done</extracomment>
        <translation>The list could not be written.</translation>
    </message>
    <message id="1044s">
        <source>Diagnoseausgabe des Programms (Terminal)</source>
        <extracomment>Settings of a supervisor: where a listing goes</extracomment>
        <translation>diagnostic output of the program (terminal)</translation>
    </message>
    <message id="1045s">
        <source>Kein Wert des Tests passt zu diesen Einstellungen; alles bleibt, wie es war.</source>
        <extracomment>Settings of a supervisor: line that says what a button has done</extracomment>
        <translation>No value of the test fits these settings; everything stays as it was.</translation>
    </message>
    <message id="1046s">
        <source>%1 Gruppen eingestellt und gesperrt.</source>
        <extracomment>Settings of a supervisor: line that says what a button has done; %1 is a number above 1</extracomment>
        <translation>%1 groups set and locked.</translation>
    </message>
    <message id="1047s">
        <source>1 Gruppe eingestellt und gesperrt.</source>
        <extracomment>Settings of a supervisor: line that says what a button has done</extracomment>
        <translation>1 group set and locked.</translation>
    </message>
    <message id="1048s">
        <source>,</source>
        <extracomment>Decimal sign of numbers that are spoken</extracomment>
        <translation>.</translation>
    </message>
    <message id="1050s">
        <source>Übungsmodus</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Exercise level</translation>
    </message>
    <message id="1051s">
        <source>Tongeschlecht</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Mode</translation>
    </message>
    <message id="1052s">
        <source>Abfolge</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Order of tasks</translation>
    </message>
    <message id="1053s">
        <source>Tonraum</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Tone range</translation>
    </message>
    <message id="1054s">
        <source>Intervall-Größe</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Interval size</translation>
    </message>
    <message id="1055s">
        <source>Intervall-Anzahl</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Number of intervals</translation>
    </message>
    <message id="1056s">
        <source>Intervall-Bestimmung</source>
        <extracomment>Settings: group title; result sheet: label; the options go on: from the keynote</extracomment>
        <translation>Interval named</translation>
    </message>
    <message id="1057s">
        <source>Grundton zusätzlich</source>
        <extracomment>Settings: group title</extracomment>
        <translation>Keynote sounds along</translation>
    </message>
    <message id="1058s">
        <source>Tonart</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Key</translation>
    </message>
    <message id="1059s">
        <source>Frequenz</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Frequency</translation>
    </message>
    <message id="1060s">
        <source>Tempo</source>
        <extracomment>Settings: group title; result sheet: label</extracomment>
        <translation>Tempo</translation>
    </message>
    <message id="1061s">
        <source>Klang</source>
        <extracomment>Settings: group title</extracomment>
        <translation>Sound</translation>
    </message>
    <message id="1062s">
        <source>Dur</source>
        <extracomment>Settings: option</extracomment>
        <translation>Major</translation>
    </message>
    <message id="1063s">
        <source>moll</source>
        <extracomment>Settings: option</extracomment>
        <translation>Minor</translation>
    </message>
    <message id="1064s">
        <source>Dur-moll</source>
        <extracomment>Settings: option</extracomment>
        <translation>Major and minor</translation>
    </message>
    <message id="1065s">
        <source>manuell</source>
        <extracomment>Settings: option: order of tasks</extracomment>
        <translation>Manual</translation>
    </message>
    <message id="1066s">
        <source>automatisch</source>
        <extracomment>Settings: option: order of tasks</extracomment>
        <translation>Automatic</translation>
    </message>
    <message id="1067s">
        <source>gleichbleibend</source>
        <extracomment>Settings: option: key</extracomment>
        <translation>Stays the same</translation>
    </message>
    <message id="1068s">
        <source>wechselnd</source>
        <extracomment>Settings: option: key</extracomment>
        <translation>Changes</translation>
    </message>
    <message id="1069s">
        <source>ja</source>
        <extracomment>Settings: option: keynote sounds along</extracomment>
        <translation>Yes</translation>
    </message>
    <message id="1070s">
        <source>nein</source>
        <extracomment>Settings: option: keynote sounds along</extracomment>
        <translation>No</translation>
    </message>
    <message id="1071s">
        <source>max. 1 Oktave</source>
        <extracomment>Settings: option: interval size</extracomment>
        <translation>Up to 1 octave</translation>
    </message>
    <message id="1072s">
        <source>Oktaven</source>
        <extracomment>Settings: unit behind a number, tone range and interval size</extracomment>
        <translation>octaves</translation>
    </message>
    <message id="1073s">
        <source>gemischt (0 - 2 Okt)</source>
        <extracomment>Settings: option: interval size</extracomment>
        <translation>Mixed (0 - 2 oct.)</translation>
    </message>
    <message id="1074s">
        <source>fest (a' 440 Hz)</source>
        <extracomment>Settings: option: frequency; keep the stroke behind the a</extracomment>
        <translation>Fixed (a' 440 Hz)</translation>
    </message>
    <message id="1075s">
        <source>variabel</source>
        <extracomment>Settings: option: frequency</extracomment>
        <translation>Variable</translation>
    </message>
    <message id="1076s">
        <source>vom Grundton</source>
        <extracomment>Settings: option: interval named</extracomment>
        <translation>From the keynote</translation>
    </message>
    <message id="1077s">
        <source>vom Vorton</source>
        <extracomment>Settings: option: interval named</extracomment>
        <translation>From the tone before</translation>
    </message>
    <message id="1078s">
        <source>alle</source>
        <extracomment>Settings: option: degrees of tone 2</extracomment>
        <translation>All</translation>
    </message>
    <message id="1079s">
        <source>1 nach Wahl</source>
        <extracomment>Settings: option: degrees of tone 2</extracomment>
        <translation>1 of your choice</translation>
    </message>
    <message id="1080s">
        <source>Hilfe</source>
        <extracomment>Settings: button</extracomment>
        <translation>Help</translation>
    </message>
    <message id="1081s">
        <source>Klangprobe</source>
        <extracomment>Settings: button</extracomment>
        <translation>Sound check</translation>
    </message>
    <message id="1082s">
        <source>Einlesen Test</source>
        <extracomment>Settings: button for supervisors</extracomment>
        <translation>Read test</translation>
    </message>
    <message id="1083s">
        <source>Einstellungen Speichern</source>
        <extracomment>Settings: button for supervisors</extracomment>
        <translation>Save settings</translation>
    </message>
    <message id="1084s">
        <source>Lautstärke</source>
        <extracomment>Settings: slider</extracomment>
        <translation>Volume</translation>
    </message>
    <message id="1085s">
        <source>Das MIDI-Gerät lässt sich nicht verwenden. Prüfen Sie die Verbindung, oder starten Sie das Programm mit --midi N, der Nummer eines anderen Geräts.</source>
        <extracomment>Settings: message; how it goes on may follow on a line of its own</extracomment>
        <translation>The MIDI device cannot be used. Check the connection, or start the program with --midi N, the number of another device.</translation>
    </message>
    <message id="1086s">
        <source>Oktavbereich</source>
        <extracomment>Settings: name of a list for a screen reader; result sheet: label</extracomment>
        <translation>Octave range</translation>
    </message>
    <message id="1087s">
        <source>Instrument</source>
        <extracomment>Settings: name of a list for a screen reader; result sheet: label</extracomment>
        <translation>Instrument</translation>
    </message>
    <message id="1088s">
        <source>Stimme</source>
        <extracomment>Settings: name of a list for a screen reader: the tones or the keynote</extracomment>
        <translation>Voice</translation>
    </message>
    <message id="1089s">
        <source>Prüfung Nr.</source>
        <extracomment>Settings: name of a list for a screen reader</extracomment>
        <translation>Exam no.</translation>
    </message>
    <message id="1090s">
        <source>Ton 2 auf Stufe</source>
        <extracomment>Settings: name of a list for a screen reader; result sheet: label</extracomment>
        <translation>Tone 2 on degree</translation>
    </message>
    <message id="1091s">
        <source>Richtung der Transposition</source>
        <extracomment>Settings: name of a list for a screen reader</extracomment>
        <translation>Direction of transposition</translation>
    </message>
    <message id="1092s">
        <source>Intervall der Transposition</source>
        <extracomment>Settings: name of a list for a screen reader</extracomment>
        <translation>Interval of transposition</translation>
    </message>
    <message id="1093s">
        <source>Gespielt wird auf dem eingebauten Klangerzeuger oder dem letzten Gerät der Liste.</source>
        <extracomment>Settings: message, further line behind 1085</extracomment>
        <translation>Sound goes to the built-in synthesiser or the last device of the list instead.</translation>
    </message>
    <message id="1094s">
        <source>Es geht ohne Klang weiter.</source>
        <extracomment>Settings: message, further line behind 1085</extracomment>
        <translation>It goes on without sound.</translation>
    </message>
    <message id="1100s">
        <source>Trainingsstand</source>
        <translation>Training progress</translation>
    </message>
    <message id="1101s">
        <source>Aufgabe gelöst</source>
        <translation>Training solved</translation>
    </message>
    <message id="1102s">
        <source>zu schwer !!</source>
        <translation>Too difficult!</translation>
    </message>
    <message id="1103s">
        <source>Nr.</source>
        <translation>No.</translation>
    </message>
    <message id="1104s">
        <source>Speichern</source>
        <translation>Save</translation>
    </message>
    <message id="1105s">
        <source>Nicht speichern</source>
        <translation>Don't save</translation>
    </message>
    <message id="1106s">
        <source>Das Training konnte nicht gespeichert werden. Soll es noch einmal versucht werden?</source>
        <translation>The training could not be saved. Try once more?</translation>
    </message>
    <message id="1107s">
        <source>Noch einmal versuchen</source>
        <translation>Try again</translation>
    </message>
    <message id="1108s">
        <source>Ohne Speichern verlassen</source>
        <translation>Leave without saving</translation>
    </message>
    <message id="1109s">
        <source>„wiederholen (Kontrolle)“ spielt die Reihe noch einmal. Auch „Grundton-Kontrolle“ führt weiter.</source>
        <translation>“Repeat (check)” plays the row once more. “Keynote check” leads on too.</translation>
    </message>
    <message id="1110s">
        <source>Die Reihe erklingt.</source>
        <translation>The row is playing.</translation>
    </message>
    <message id="1111s">
        <source>Welches Intervall folgt auf Ton %1?</source>
        <translation>Which interval follows tone %1?</translation>
    </message>
    <message id="1112s">
        <source>Das Protokoll konnte hier nicht geschrieben werden:</source>
        <translation>The protocol could not be written here:</translation>
    </message>
    <message id="1113s">
        <source>Das Protokoll konnte nicht geschrieben werden. Soll es noch einmal versucht werden?</source>
        <translation>The protocol could not be written. Try once more?</translation>
    </message>
    <message id="1114s">
        <source>Das Training ist beendet. Mit „weiter“ geht es zum Ergebnis.</source>
        <translation>The training is finished. Continue to see the result.</translation>
    </message>
    <message id="1115s">
        <source>Wiederholungen</source>
        <translation>Repeats</translation>
    </message>
    <message id="1116s">
        <source>Grundton-Kontrollen</source>
        <translation>Keynote checks</translation>
    </message>
    <message id="1117s">
        <source>Alle Aufgaben sind beantwortet. Mit „weiter“ geht es zum Ergebnis.</source>
        <translation>All tasks are answered. Continue to see the result.</translation>
    </message>
    <message id="1118s">
        <source>Teststand einblenden</source>
        <translation>Show test progress</translation>
    </message>
    <message id="1119s">
        <source>Teststand ausblenden</source>
        <translation>Hide test progress</translation>
    </message>
    <message id="1120s">
        <source>Einen Moment bitte!</source>
        <translation>One moment, please.</translation>
    </message>
    <message id="1121s">
        <source>Gleich folgt die nächste Aufgabe.</source>
        <translation>The next task follows shortly.</translation>
    </message>
    <message id="1122s">
        <source>Der Grundton erklingt.</source>
        <translation>The keynote is playing.</translation>
    </message>
    <message id="1123s">
        <source>richtig</source>
        <translation>right</translation>
    </message>
    <message id="1124s">
        <source>falsch</source>
        <translation>wrong</translation>
    </message>
    <message id="1125s">
        <source>gesucht</source>
        <translation>wanted</translation>
    </message>
    <message id="1126s">
        <source>Weiter ohne Protokoll</source>
        <translation>Continue without a protocol</translation>
    </message>
    <message id="1127s">
        <source>Ton</source>
        <translation>Tone</translation>
    </message>
    <message id="1128s">
        <source>Das MIDI-Gerät antwortet nicht. Die Übung bleibt offen: „wiederholen“ versucht es noch einmal, „zurück“ führt zum Ergebnis.</source>
        <translation>The MIDI device does not answer. The exercise stays open: “Repeat” tries again, “Back” leads to the result.</translation>
    </message>
    <message id="1129s">
        <source>Das Ende des Trainings konnte nicht gespeichert werden. Das gespeicherte Training wird weiter zum Fortsetzen angeboten.</source>
        <translation>The end of the training could not be saved. The saved training will still be offered for continuing.</translation>
    </message>
    <message id="1130s">
        <source>gelöst</source>
        <extracomment>left end of the training bar</extracomment>
        <translation>solved</translation>
    </message>
    <message id="1131s">
        <source>zu schwer</source>
        <extracomment>right end of the training bar</extracomment>
        <translation>too difficult</translation>
    </message>
    <message id="1132s">
        <source>%1 %</source>
        <extracomment>percentage with its sign; %1 is the number</extracomment>
        <translation>%1%</translation>
    </message>
    <message id="1133s">
        <source>Teststand</source>
        <extracomment>title of the card with what is left of a test</extracomment>
        <translation>Test progress</translation>
    </message>
    <message id="1134s">
        <source>Stand</source>
        <extracomment>title of the card with the counters</extracomment>
        <translation>Standing</translation>
    </message>
    <message id="1135s">
        <source>Es liegt stattdessen hier:</source>
        <translation>It has been saved here instead:</translation>
    </message>
    <message id="1136s">
        <source>Beim Speichern ist ein Fehler aufgetreten. Es ist kein Training zum Fortsetzen gespeichert.</source>
        <translation>An error occurred while saving. There is no saved training to continue.</translation>
    </message>
    <message id="1137s">
        <source>Beim Speichern ist ein Fehler aufgetreten, und die gespeicherten Trainings lassen sich nicht lesen. Ob eines zum Fortsetzen da ist, zeigt sich, wenn die Einstellungen neu geöffnet werden.</source>
        <translation>An error occurred while saving, and the saved trainings cannot be read. Whether there is one to continue will show when the settings are opened again.</translation>
    </message>
    <message id="1138s">
        <source>Das bereits gespeicherte Training dieser Übung wird dabei ersetzt.</source>
        <extracomment>behind the question whether to save the training</extracomment>
        <translation>The training already saved for this exercise will be replaced.</translation>
    </message>
    <message id="1139s">
        <source>Ob für diese Übung schon ein Training gespeichert ist, lässt sich im Moment nicht feststellen; ein vorhandenes würde ersetzt.</source>
        <extracomment>behind the question whether to save the training, while the store does not answer</extracomment>
        <translation>Whether a training is already saved for this exercise cannot be told at the moment; one that is there would be replaced.</translation>
    </message>
    <message id="1140s">
        <source>Hören Sie zu.</source>
        <translation>Listen.</translation>
    </message>
    <message id="1141s">
        <source>Hören Sie die Reihe zur Kontrolle.</source>
        <translation>Listen once more to check.</translation>
    </message>
    <message id="1142s">
        <source>Weiter zur nächsten Aufgabe</source>
        <translation>Go on to the next task</translation>
    </message>
    <message id="1143s">
        <source>Vorher können Sie die Reihe oder den Grundton noch einmal hören.</source>
        <translation>Before that you can hear the row or the keynote again.</translation>
    </message>
    <message id="1144s">
        <source>Weiter zum Ergebnis</source>
        <translation>Go on to the result</translation>
    </message>
    <message id="1145s">
        <source>Die Zeit ist um.</source>
        <translation>Time is up.</translation>
    </message>
    <message id="1146s">
        <source>Die Übung ist beendet.</source>
        <translation>The exercise is over.</translation>
    </message>
    <message id="1147s">
        <source>Das Ergebnis folgt.</source>
        <translation>The result follows.</translation>
    </message>
    <message id="1148s">
        <source>Antworten Sie mit einer Schaltfläche oder mit der Taste, die darauf steht.</source>
        <translation>Answer with a button or with the key printed on it.</translation>
    </message>
    <message id="1149s">
        <source>Mit „weiter“ geht es zum Ergebnis.</source>
        <translation>Continue to see the result.</translation>
    </message>
    <message id="1150s">
        <source>Stufen-Intervall über dem Grundton</source>
        <translation>Degree interval above the keynote</translation>
    </message>
    <message id="1151s">
        <source>Intervall von Ton zu Ton</source>
        <translation>Interval from tone to tone</translation>
    </message>
    <message id="1152s">
        <source>z.B. c - moll</source>
        <translation>e.g. C minor</translation>
    </message>
    <message id="1153s">
        <source>z.B. C - Dur</source>
        <translation>e.g. C major</translation>
    </message>
    <message id="1154s">
        <source>z.B. C - Dur-moll</source>
        <translation>e.g. C major-minor</translation>
    </message>
    <message id="1155s">
        <source>Int:</source>
        <translation>Interval:</translation>
    </message>
    <message id="1156s">
        <source>Tonreihe</source>
        <translation>Tone row</translation>
    </message>
    <message id="1157s">
        <source>gegeben</source>
        <translation>given</translation>
    </message>
    <message id="1158s">
        <source>Auf welcher Stufe steht Ton %1?</source>
        <translation>Which degree is tone %1?</translation>
    </message>
    <message id="1159s">
        <source>Der Test läuft noch, die Zeit geht weiter. Soll er abgebrochen werden?</source>
        <translation>The test is still running and so is its time. Break it off?</translation>
    </message>
    <message id="1160s">
        <source>Die Prüfung läuft noch, die Zeit geht weiter. Soll sie abgebrochen werden?</source>
        <translation>The exam is still running and so is its time. Break it off?</translation>
    </message>
    <message id="1161s">
        <source>Ja, abbrechen</source>
        <translation>Yes, break off</translation>
    </message>
    <message id="1162s">
        <source>Weitermachen</source>
        <translation>Keep going</translation>
    </message>
    <message id="1163s">
        <source>noch %1 Versuche</source>
        <translation>%1 tries left</translation>
    </message>
    <message id="1164s">
        <source>noch 1 Versuch</source>
        <translation>1 try left</translation>
    </message>
    <message id="1165s">
        <source>Jetzt antworten.</source>
        <translation>Answer now.</translation>
    </message>
    <message id="1166s">
        <source>Reihe fertig.</source>
        <translation>Row done.</translation>
    </message>
    <message id="1167s">
        <source>Taste %1</source>
        <translation>Key %1</translation>
    </message>
    <message id="1168s">
        <source>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen. Ihr Stand ist gespeichert, und Sie können sie mit „%3“ weiterführen.</source>
        <extracomment>%1 number of tasks, %2 study, exercise and level, %3 the name of the exercise level</extracomment>
        <translation>The exercise “%2” was interrupted after task %1. It has been saved, and you can go on with it by “%3”.</translation>
    </message>
    <message id="1169s">
        <source>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen.</source>
        <extracomment>%1 number of tasks, %2 study, exercise and level</extracomment>
        <translation>The exercise “%2” was interrupted after task %1.</translation>
    </message>
    <message id="1170s">
        <source>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen. Soll ihr Stand gespeichert werden, damit Sie sie mit „%3“ weiterführen können?</source>
        <extracomment>%1 number of tasks, %2 study, exercise and level, %3 the name of the exercise level</extracomment>
        <translation>The exercise “%2” was interrupted after task %1. Save it, so that you can go on with it by “%3”?</translation>
    </message>
    <message id="1171s">
        <source>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen. Ihr Stand kann im Augenblick nicht gespeichert werden. Beim nächsten Start des Programms wird es erneut versucht.</source>
        <extracomment>%1 number of tasks, %2 study, exercise and level</extracomment>
        <translation>The exercise “%2” was interrupted after task %1 and cannot be saved at the moment. The next start of the program will try again.</translation>
    </message>
    <message id="1172s">
        <source>Die Klangbibliothek (SoundFont) ist beschädigt oder kann nicht gelesen werden. Die Übung läuft weiter, bleibt aber stumm. Installieren Sie das Paket „timgm6mb-soundfont“ neu.</source>
        <translation>The sound font is damaged or cannot be read. The exercise goes on but stays silent. Install the package “timgm6mb-soundfont” again.</translation>
    </message>
    <message id="1173s">
        <source>Das bereits gespeicherte Training dieser Übung ist beschädigt und wird dabei ersetzt.</source>
        <extracomment>behind the question whether to save an interrupted training</extracomment>
        <translation>The training already saved for this exercise is damaged and will be replaced.</translation>
    </message>
    <message id="1174s">
        <source>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen. Ihr Stand lässt sich nicht weiterführen.</source>
        <extracomment>%1 number of tasks, %2 study, exercise and level</extracomment>
        <translation>The exercise “%2” was interrupted after task %1. It is not possible to go on with it.</translation>
    </message>
    <message id="1175s">
        <source>Die Übung „%2“ wurde nach Aufgabe %1 unterbrochen. Inzwischen ist ein neuerer Stand gespeichert; er bleibt, und der unterbrochene entfällt.</source>
        <extracomment>%1 number of tasks, %2 study, exercise and level</extracomment>
        <translation>The exercise “%2” was interrupted after task %1. Newer work has been saved meanwhile; it stays, and the interrupted work is dropped.</translation>
    </message>
    <message id="1176s">
        <source>Ihr Protokoll ist gespeichert.</source>
        <extracomment>behind the message that an exercise was interrupted</extracomment>
        <translation>Its protocol has been saved.</translation>
    </message>
    <message id="1177s">
        <source>Ihr Protokoll liegt im Datenordner, denn in den Protokollordner konnte es nicht geschrieben werden:</source>
        <extracomment>behind the message that an exercise was interrupted; the path follows on the next line</extracomment>
        <translation>Its protocol lies in the data folder, because it could not be written to the protocol folder:</translation>
    </message>
    <message id="1178s">
        <source>Ihr Protokoll konnte nicht geschrieben werden. Warum, steht in der Logdatei. Beim nächsten Start des Programms wird es erneut versucht.</source>
        <extracomment>behind the message that an exercise was interrupted</extracomment>
        <translation>Its protocol could not be written; the log file says why. The next start of the program will try again.</translation>
    </message>
    <message id="1200s">
        <source>Einzel-Ergebnisse</source>
        <extracomment>title of the result sheet</extracomment>
        <translation>Individual results</translation>
    </message>
    <message id="1201s">
        <source>Einstellungen</source>
        <extracomment>result sheet: head of the list of settings</extracomment>
        <translation>Settings</translation>
    </message>
    <message id="1202s">
        <source>Ergebnisse</source>
        <extracomment>result sheet: head of the table</extracomment>
        <translation>Results</translation>
    </message>
    <message id="1203s">
        <source>Hilfe</source>
        <extracomment>result sheet: button</extracomment>
        <translation>Help</translation>
    </message>
    <message id="1204s">
        <source>Das Blatt konnte nicht gedruckt werden:</source>
        <extracomment>result sheet: a reason follows on the next line</extracomment>
        <translation>The sheet could not be printed:</translation>
    </message>
    <message id="1205s">
        <source>Drucken</source>
        <extracomment>title of the print dialogs</extracomment>
        <translation>Print</translation>
    </message>
    <message id="1206s">
        <source>Blatt als PDF-Datei speichern (kein Drucker eingerichtet)</source>
        <extracomment>result sheet: title of the file dialog</extracomment>
        <translation>Save the sheet as a PDF file (no printer is set up)</translation>
    </message>
    <message id="1207s">
        <source>PDF-Dateien</source>
        <extracomment>result sheet: kind of file in the file dialog</extracomment>
        <translation>PDF files</translation>
    </message>
    <message id="1208s">
        <source>Stärken und Schwächen</source>
        <extracomment>result sheet: head of the chart</extracomment>
        <translation>Strengths and weaknesses</translation>
    </message>
    <message id="1209s">
        <source>nicht gefragt</source>
        <extracomment>result sheet: spoken for an empty bar</extracomment>
        <translation>not asked</translation>
    </message>
    <message id="1210s">
        <source>In diesem Übungsmodus werden keine Prozente berechnet.</source>
        <extracomment>result sheet: instead of the chart</extracomment>
        <translation>No percentages are worked out at this exercise level.</translation>
    </message>
    <message id="1211s">
        <source>Ergebnisblatt</source>
        <extracomment>name of the sheet for a screen reader and of the printed document</extracomment>
        <translation>Result sheet</translation>
    </message>
    <message id="1212s">
        <source>Die Datei kann nicht geschrieben werden: </source>
        <extracomment>result sheet: why a print failed; the path follows at once</extracomment>
        <translation>The file cannot be written: </translation>
    </message>
    <message id="1213s">
        <source>Der Drucker hat den Auftrag abgebrochen.</source>
        <extracomment>result sheet: why a print failed</extracomment>
        <translation>The printer broke off the job.</translation>
    </message>
    <message id="1215s">
        <source>Nr.</source>
        <extracomment>Result sheet: label of a setting; the exam follows: 'No.: Exam 3'</extracomment>
        <translation>No.</translation>
    </message>
    <message id="1217s">
        <source>Instrumente</source>
        <extracomment>Result sheet: label of a setting, several instruments</extracomment>
        <translation>Instruments</translation>
    </message>
    <message id="1226s">
        <source>Grundton</source>
        <extracomment>Result sheet: label of a setting; 1234 and the choice follow: 'Keynote: sounds along – no'</extracomment>
        <translation>Keynote</translation>
    </message>
    <message id="1229s">
        <source>Aufgabe</source>
        <extracomment>Result sheet: label of a setting</extracomment>
        <translation>Task</translation>
    </message>
    <message id="1230s">
        <source>Genauigkeit</source>
        <extracomment>Result sheet: label of a setting</extracomment>
        <translation>Accuracy</translation>
    </message>
    <message id="1232s">
        <source>Ton 2 auf Stufen</source>
        <extracomment>Result sheet: label of a setting</extracomment>
        <translation>Tone 2 on degrees</translation>
    </message>
    <message id="1234s">
        <source>zusätzlich</source>
        <extracomment>Result sheet: stands with a blank before the choice whether the keynote sounds along</extracomment>
        <translation>sounds along –</translation>
    </message>
    <message id="1235s">
        <source>Name:</source>
        <extracomment>Result sheet: label of a personal field</extracomment>
        <translation>Name:</translation>
    </message>
    <message id="1236s">
        <source>Vorname:</source>
        <extracomment>Result sheet: label of a personal field</extracomment>
        <translation>First name:</translation>
    </message>
    <message id="1237s">
        <source>Matrikel-Nr.:</source>
        <extracomment>Result sheet: label of a personal field</extracomment>
        <translation>Student no.:</translation>
    </message>
    <message id="1238s">
        <source>%1 von %2</source>
        <extracomment>Result sheet: tasks of a test, %1 done of %2</extracomment>
        <translation>%1 of %2</translation>
    </message>
    <message id="1239s">
        <source>Aufgaben</source>
        <extracomment>Result sheet: behind a number of tasks, 0 or more than 1</extracomment>
        <translation>tasks</translation>
    </message>
    <message id="1245s">
        <source>Aufgabe</source>
        <extracomment>Result sheet: behind the number 1</extracomment>
        <translation>task</translation>
    </message>
    <message id="1246s">
        <source>in %1</source>
        <extracomment>Result sheet: working time, %1 is '4 min 12 s'</extracomment>
        <translation>in %1</translation>
    </message>
    <message id="1247s">
        <source>richtig</source>
        <extracomment>Result sheet: behind the number of right answers</extracomment>
        <translation>right</translation>
    </message>
    <message id="1248s">
        <source>falsch</source>
        <extracomment>Result sheet: behind the number of wrong answers</extracomment>
        <translation>wrong</translation>
    </message>
    <message id="1249s">
        <source>h</source>
        <extracomment>Result sheet: unit behind the hours of working time</extracomment>
        <translation>h</translation>
    </message>
    <message id="1250s">
        <source>gesperrt</source>
        <extracomment>Mark in the corner of a locked group of settings</extracomment>
        <translation>locked</translation>
    </message>
    <message id="1251s">
        <source>Ja</source>
        <extracomment>Button of a question</extracomment>
        <translation>Yes</translation>
    </message>
    <message id="1252s">
        <source>Nein</source>
        <extracomment>Button of a question</extracomment>
        <translation>No</translation>
    </message>
    <message id="1253s">
        <source>Was möchten Sie üben?</source>
        <extracomment>First window: its question</extracomment>
        <translation>What would you like to practise?</translation>
    </message>
    <message id="1254s">
        <source>Tonale Intervalle sukzessiv, also nacheinander</source>
        <extracomment>First window: below the question</extracomment>
        <translation>Tonal intervals in succession</translation>
    </message>
    <message id="1255s">
        <source>Bereich</source>
        <extracomment>First window: title of the group with ear training and music theory</extracomment>
        <translation>Area</translation>
    </message>
    <message id="1256s">
        <source>Sie hören die Aufgabe</source>
        <extracomment>First window: explains ear training</extracomment>
        <translation>You hear the task</translation>
    </message>
    <message id="1257s">
        <source>Sie lesen die Aufgabe</source>
        <extracomment>First window: explains music theory</extracomment>
        <translation>You read the task</translation>
    </message>
    <message id="1258s">
        <source>die Intervalle einer Reihe benennen</source>
        <extracomment>First window: explains the exercise</extracomment>
        <translation>Name the intervals of a row</translation>
    </message>
    <message id="1259s">
        <source>eine Tonhöhe mit dem Regler treffen</source>
        <extracomment>First window: explains the exercise</extracomment>
        <translation>Form a pitch with the slider</translation>
    </message>
    <message id="1260s">
        <source>die Reihe auf der Klaviatur nachspielen</source>
        <extracomment>First window: explains the exercise</extracomment>
        <translation>Play the row on the keyboard</translation>
    </message>
    <message id="1261s">
        <source>die Reihe in Noten schreiben</source>
        <extracomment>First window: explains the exercise</extracomment>
        <translation>Write the row on the staff</translation>
    </message>
    <message id="1280s">
        <source>Auf diesem Rechner ist keine Tonausgabe verfügbar. Die Übung läuft weiter, bleibt aber stumm. Schließen Sie Lautsprecher oder Kopfhörer an, oder starten Sie das Programm mit --midi N, der Nummer eines MIDI-Geräts.</source>
        <translation>This computer has no sound output. The exercise goes on but stays silent. Connect speakers or headphones, or start the program with --midi N, the number of a MIDI device.</translation>
    </message>
    <message id="1281s">
        <source>Die Klangbibliothek (SoundFont) fehlt. Die Übung läuft weiter, bleibt aber stumm. Installieren Sie das Paket „timgm6mb-soundfont“.</source>
        <translation>The sound font is missing. The exercise goes on but stays silent. Install the package “timgm6mb-soundfont”.</translation>
    </message>
    <message id="1282s">
        <source>Hilfe</source>
        <translation>Help</translation>
    </message>
    <message id="1283s">
        <source>Wählen Sie links den Bereich und rechts die Übungsart. „OK“ führt zu den Einstellungen, „ENDE“ beendet das Programm.</source>
        <translation>Choose the area on the left and the exercise type on the right. “OK” leads to the settings, “Quit” ends the program.</translation>
    </message>
    <message id="1284s">
        <source>Gelbe Gruppen sind frei wählbar, rote sind durch den Übungsmodus festgelegt, blaue betreffen Tempo und Klang. Zeigen Sie mit der Maus auf etwas Graues, um zu erfahren, warum es nicht wählbar ist. „Klangprobe“ spielt einige Töne mit Ihrem Instrument und Tempo. „OK“ beginnt die Übung.</source>
        <translation>Yellow groups are open to choice, red ones are set by the exercise level, blue ones concern tempo and sound. Point at something grey to learn why it cannot be chosen. “Sound check” plays a few tones with your instrument and tempo. “OK” begins the exercise.</translation>
    </message>
    <message id="1285s">
        <source>Eine Tonreihe erklingt. Benennen Sie die Intervalle der Reihe nach mit den Schaltflächen oder den Tasten, die darauf stehen. „wiederholen“ spielt die Reihe noch einmal, „Grundton-Kontrolle“ den Akkord des Grundtons. Ist die Reihe fertig, hören Sie sie zur Kontrolle, dann geht es weiter; in Test und Prüfung geht es gleich weiter. „zurück“ beendet die Übung und zeigt das Ergebnis; in Test und Prüfung wird vorher gefragt.</source>
        <translation>A row of tones is played. Name its intervals in turn with the buttons or the keys printed on them. “Repeat” plays the row again, “Keynote check” the chord of the keynote. When the row is done you hear it once more to check, then go on; in a test or exam you go on at once. “Back” ends the exercise and shows the result; in a test or exam you are asked first.</translation>
    </message>
    <message id="1286s">
        <source>Das Ergebnisblatt sagt, wie viele Aufgaben Sie in welcher Zeit beantwortet haben. Wurde gewertet, zeigt es für jede Stufe oder jedes Intervall einen Prozentwert in fünf Farben von rot (unter 20 %) bis grün (ab 80 %); freies Üben wird nicht gewertet. „Drucken“ bringt es auf eine Seite oder in eine PDF-Datei.</source>
        <translation>The result sheet tells how many tasks you answered in what time. Where you were scored it shows a percentage for each degree or interval, in five colours from red (below 20 %) to green (from 80 %); free practice is not scored. “Print” puts it on a page or into a PDF file.</translation>
    </message>
    <message id="1290s">
        <source>nachbilden</source>
        <translation>Imitate</translation>
    </message>
    <message id="1291s">
        <source>erst alle drei Töne hören</source>
        <translation>hear all three tones first</translation>
    </message>
    <message id="1292s">
        <source>nur nach dem Intervallnamen</source>
        <translation>from the interval name alone</translation>
    </message>
    <message id="1293s">
        <source>richtig: bis %1 Schritte (%2 Cent)</source>
        <translation>right: within %1 steps (%2 cents)</translation>
    </message>
    <message id="1294s">
        <source>richtig: nur genau (0 Schritte)</source>
        <translation>right: exactly met (0 steps)</translation>
    </message>
    <message id="1295s">
        <source>zum Bilden noch nicht verfügbar</source>
        <translation>not available for building yet</translation>
    </message>
    <message id="1296s">
        <source>Gelbe Gruppen sind frei wählbar, rote sind durch den Übungsmodus festgelegt, blaue betreffen Tempo und Klang. Bei „nachbilden“ hören Sie erst alle drei Töne und formen den dritten dann nach. Bei „bilden“ formen Sie ihn nur nach dem Namen des Intervalls. Die Genauigkeit sagt, wie weit der Ton danebenliegen darf; 32 Schritte des Reglers sind ein Halbton. „Klangprobe“ spielt einige Töne mit Ihrem Instrument und Tempo. „OK“ beginnt die Übung.</source>
        <translation>Yellow groups are open to choice, red ones are set by the exercise level, blue ones concern tempo and sound. With “Imitate” you first hear all three tones and then form the third one again. With “Build” you form it from the name of the interval alone. The accuracy tells how far off the tone may be; 32 steps of the slider are a semitone. “Sound check” plays a few tones with your instrument and tempo. “OK” begins the exercise.</translation>
    </message>
    <message id="1315s">
        <source>Fertig</source>
        <translation>Done</translation>
    </message>
    <message id="1316s">
        <source>Bilden Sie: %1</source>
        <translation>Build: %1</translation>
    </message>
    <message id="1317s">
        <source>Bewegen Sie den Regler, bis der Ton stimmt, und drücken Sie „Fertig“.</source>
        <translation>Move the slider until the tone is right, then press “Done”.</translation>
    </message>
    <message id="1318s">
        <source>Bewegen Sie zuerst den Regler.</source>
        <translation>Move the slider first.</translation>
    </message>
    <message id="1319s">
        <source>Die Kontrollwiedergabe spielt erst Ihren Ton, dann den richtigen.</source>
        <translation>“Compare” plays your tone first, then the right one.</translation>
    </message>
    <message id="1320s">
        <source>%1 Schritte zu hoch, +%2 Cent</source>
        <translation>%1 steps too high, +%2 cents</translation>
    </message>
    <message id="1321s">
        <source>1 Schritt zu hoch, +%1 Cent</source>
        <translation>1 step too high, +%1 cents</translation>
    </message>
    <message id="1322s">
        <source>%1 Schritte zu tief, −%2 Cent</source>
        <translation>%1 steps too low, −%2 cents</translation>
    </message>
    <message id="1323s">
        <source>1 Schritt zu tief, −%1 Cent</source>
        <translation>1 step too low, −%1 cents</translation>
    </message>
    <message id="1324s">
        <source>genau getroffen, 0 Cent</source>
        <translation>exactly right, 0 cents</translation>
    </message>
    <message id="1325s">
        <source>tiefer</source>
        <translation>lower</translation>
    </message>
    <message id="1326s">
        <source>höher</source>
        <translation>higher</translation>
    </message>
    <message id="1327s">
        <source>Pfeiltasten: ein Schritt · Bild auf/ab: fünf</source>
        <translation>Arrow keys: one step · Page up/down: five</translation>
    </message>
    <message id="1328s">
        <source>Aufgabe fertig.</source>
        <translation>Task done.</translation>
    </message>
    <message id="1329s">
        <source>Zwei Töne erklingen, der dritte klingt weiter. Bewegen Sie den Regler mit der Maus oder den Pfeiltasten, bis der dritte Ton stimmt, und drücken Sie „Fertig“. Vier falsche Versuche beenden die Aufgabe. „wiederholen“ spielt die Aufgabe noch einmal; danach spielt „Kontrollwiedergabe“ erst Ihren Ton, dann den richtigen.</source>
        <translation>Two tones are played, the third sounds on. Move the slider with the mouse or the arrow keys until the third tone is right, then press “Done”. Four wrong tries end the task. “Repeat” plays the task once more; afterwards “Compare” plays your tone first, then the right one.</translation>
    </message>
    <message id="1330s">
        <source>Hilfe schließen</source>
        <translation>Close help</translation>
    </message>
    <message id="1331s">
        <source>Dieses Training ist zu Ende. Das früher gespeicherte Training dieser Übung kann damit nicht mehr fortgesetzt werden.</source>
        <translation>This training has come to its end. The training saved earlier for this exercise can therefore no longer be continued.</translation>
    </message>
    <message id="1332s">
        <source>Spielen Sie Ton %1</source>
        <translation>Play tone %1</translation>
    </message>
    <message id="1333s">
        <source>Die Taste klingt; das Feld auf der Taste sagt, wie der Ton geschrieben ist.</source>
        <translation>The key sounds; the field on the key says how the tone is spelled.</translation>
    </message>
    <message id="1334s">
        <source>Klicken Sie auf das Feld der Taste. Pfeiltasten wählen ein Feld, die Eingabetaste spielt es.</source>
        <translation>Click the field on the key. Arrow keys choose a field, Enter plays it.</translation>
    </message>
    <message id="1335s">
        <source>Ton 1 ist der Grundton. Jede Taste gilt, das Feld muss stimmen.</source>
        <translation>Tone 1 is the keynote. Any key will do, the field must be right.</translation>
    </message>
    <message id="1336s">
        <source>unteres Feld</source>
        <translation>lower field</translation>
    </message>
    <message id="1337s">
        <source>mittleres Feld</source>
        <translation>middle field</translation>
    </message>
    <message id="1338s">
        <source>oberes Feld</source>
        <translation>upper field</translation>
    </message>
    <message id="1339s">
        <source>Subkontra-Oktave</source>
        <translation>subcontra octave</translation>
    </message>
    <message id="1340s">
        <source>Kontra-Oktave</source>
        <translation>contra octave</translation>
    </message>
    <message id="1341s">
        <source>große Oktave</source>
        <translation>great octave</translation>
    </message>
    <message id="1342s">
        <source>kleine Oktave</source>
        <translation>small octave</translation>
    </message>
    <message id="1343s">
        <source>eingestrichene Oktave</source>
        <translation>one-line octave</translation>
    </message>
    <message id="1344s">
        <source>zweigestrichene Oktave</source>
        <translation>two-line octave</translation>
    </message>
    <message id="1345s">
        <source>dreigestrichene Oktave</source>
        <translation>three-line octave</translation>
    </message>
    <message id="1346s">
        <source>viergestrichene Oktave</source>
        <translation>four-line octave</translation>
    </message>
    <message id="1348s">
        <source>Richtige Taste, andere Schreibweise: gesucht war %1.</source>
        <translation>Right key, other spelling: it was %1.</translation>
    </message>
    <message id="1349s">
        <source>Richtiger Ton, andere Lage: gesucht war %1.</source>
        <translation>Right tone, other register: it was %1.</translation>
    </message>
    <message id="1350s">
        <source>Das Feld stimmt nicht: Ton 1 schreibt man %1.</source>
        <translation>The field is not right: tone 1 is spelled %1.</translation>
    </message>
    <message id="1351s">
        <source>%1-Dur</source>
        <translation>%1 major</translation>
    </message>
    <message id="1352s">
        <source>%1-moll</source>
        <translation>%1 minor</translation>
    </message>
    <message id="1353s">
        <source>%1-Dur-moll</source>
        <translation>%1 major and minor</translation>
    </message>
    <message id="1354s">
        <source>Eine Tonreihe erklingt. Spielen Sie sie Ton für Ton auf der Klaviatur nach. Die Taste sagt die Tonhöhe, das Feld auf der Taste die Schreibweise. Der erste Ton ist der Grundton; bei ihm zählt nur das Feld. Vier falsche Tasten beenden einen Ton; eine andere Schreibweise oder Lage führt weiter, zählt aber nicht als richtig. Pfeiltasten, Bild auf und Bild ab wählen ein Feld, die Eingabetaste spielt es. „wiederholen“ spielt die Reihe noch einmal, „Grundton-Kontrolle“ den Akkord des Grundtons.</source>
        <translation>A row of tones is played. Play it back tone by tone on the keyboard. The key says the pitch, the field on the key the spelling. The first tone is the keynote; for it only the field counts. Four wrong keys end a tone; another spelling or register leads on but does not count as right. Arrow keys, Page up and Page down choose a field, Enter plays it. “Repeat” plays the row again, “Keynote check” the chord of the keynote.</translation>
    </message>
    <message id="1355s">
        <source>Klaviatur</source>
        <translation>Keyboard</translation>
    </message>
    <message id="1357s">
        <source>Ton %1</source>
        <translation>Tone %1</translation>
    </message>
    <message id="1360s">
        <source>feses</source>
        <extracomment>Name of a tone as it is printed on the piano keys: short. One that ends in b or # after a stem has these letters printed as accidentals</extracomment>
        <translation>fbb</translation>
    </message>
    <message id="1361s">
        <source>ceses</source>
        <translation>cbb</translation>
    </message>
    <message id="1362s">
        <source>geses</source>
        <translation>gbb</translation>
    </message>
    <message id="1363s">
        <source>deses</source>
        <translation>dbb</translation>
    </message>
    <message id="1364s">
        <source>ases</source>
        <translation>abb</translation>
    </message>
    <message id="1365s">
        <source>eses</source>
        <translation>ebb</translation>
    </message>
    <message id="1366s">
        <source>heses</source>
        <translation>bbb</translation>
    </message>
    <message id="1367s">
        <source>fes</source>
        <translation>fb</translation>
    </message>
    <message id="1368s">
        <source>ces</source>
        <translation>cb</translation>
    </message>
    <message id="1369s">
        <source>ges</source>
        <translation>gb</translation>
    </message>
    <message id="1370s">
        <source>des</source>
        <translation>db</translation>
    </message>
    <message id="1371s">
        <source>as</source>
        <translation>ab</translation>
    </message>
    <message id="1372s">
        <source>es</source>
        <translation>eb</translation>
    </message>
    <message id="1373s">
        <source>b</source>
        <translation>bb</translation>
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
        <translation>b</translation>
    </message>
    <message id="1381s">
        <source>fis</source>
        <translation>f#</translation>
    </message>
    <message id="1382s">
        <source>cis</source>
        <translation>c#</translation>
    </message>
    <message id="1383s">
        <source>gis</source>
        <translation>g#</translation>
    </message>
    <message id="1384s">
        <source>dis</source>
        <translation>d#</translation>
    </message>
    <message id="1385s">
        <source>ais</source>
        <translation>a#</translation>
    </message>
    <message id="1386s">
        <source>eis</source>
        <translation>e#</translation>
    </message>
    <message id="1387s">
        <source>his</source>
        <translation>b#</translation>
    </message>
    <message id="1388s">
        <source>fisis</source>
        <translation>f##</translation>
    </message>
    <message id="1389s">
        <source>cisis</source>
        <translation>c##</translation>
    </message>
    <message id="1390s">
        <source>gisis</source>
        <translation>g##</translation>
    </message>
    <message id="1391s">
        <source>disis</source>
        <translation>d##</translation>
    </message>
    <message id="1392s">
        <source>aisis</source>
        <translation>a##</translation>
    </message>
    <message id="1393s">
        <source>eisis</source>
        <translation>e##</translation>
    </message>
    <message id="1394s">
        <source>hisis</source>
        <translation>b##</translation>
    </message>
</context>
</TS>
