-- SPDX-License-Identifier: MIT
-- A practice that does not exist: its tables, 2,000 patients, three weeks of working days with 40
-- visits each, 5,000 codes. Days and times are ISO texts, amounts are cents, colours have red in the
-- low byte. A statement ends where a line ends in a semicolon.

-- What marks the file as a practice's, "FDsk", and the layout of its tables
PRAGMA application_id=1178891115;
PRAGMA user_version=1;

CREATE TABLE clock (value TEXT NOT NULL);
CREATE TABLE color (value INTEGER NOT NULL);
CREATE TABLE code_table (name TEXT PRIMARY KEY, title TEXT, lookup INTEGER, menu INTEGER,
    report TEXT, sorted TEXT, sorted_then TEXT, entity INTEGER, system INTEGER);
CREATE TABLE code (code_table TEXT NOT NULL, code TEXT NOT NULL, description TEXT NOT NULL,
    deleted INTEGER NOT NULL DEFAULT 0, copay INTEGER NOT NULL DEFAULT 0,
    PRIMARY KEY (code_table, code)) WITHOUT ROWID;
CREATE TABLE reason (code TEXT PRIMARY KEY, description TEXT NOT NULL,
    procedure TEXT NOT NULL, color INTEGER NOT NULL);
CREATE TABLE printer (id TEXT PRIMARY KEY, description TEXT NOT NULL, port TEXT NOT NULL);
CREATE TABLE user_right (user TEXT NOT NULL, item TEXT NOT NULL, digit TEXT NOT NULL);
CREATE TABLE setting (user TEXT PRIMARY KEY, text BLOB NOT NULL);
CREATE TABLE patient (number INTEGER PRIMARY KEY, last TEXT NOT NULL, first TEXT NOT NULL,
    born TEXT NOT NULL, phone TEXT NOT NULL,
    address TEXT NOT NULL, insurance TEXT NOT NULL, policy TEXT NOT NULL,
    balance INTEGER NOT NULL, alert INTEGER NOT NULL DEFAULT 0);
CREATE TABLE reminder (patient INTEGER NOT NULL REFERENCES patient, tab TEXT NOT NULL,
    line TEXT NOT NULL);
CREATE INDEX reminder_of_patient ON reminder (patient);
CREATE TABLE visit (id INTEGER PRIMARY KEY, day TEXT NOT NULL, time TEXT NOT NULL,
    patient INTEGER NOT NULL REFERENCES patient, provider TEXT NOT NULL, reason TEXT NOT NULL,
    procedures TEXT NOT NULL, state INTEGER NOT NULL);
CREATE INDEX visit_of_day ON visit (day);
CREATE INDEX visit_of_patient ON visit (patient);
CREATE TABLE payment (id INTEGER PRIMARY KEY AUTOINCREMENT,
    patient INTEGER NOT NULL REFERENCES patient, posted TEXT NOT NULL, amount INTEGER NOT NULL,
    adjustment INTEGER NOT NULL, method TEXT NOT NULL, printer TEXT NOT NULL);
CREATE INDEX payment_of_patient ON payment (patient);

INSERT INTO clock VALUES ('2024-03-05T08:22:10');
-- The palette; the library does not offer the last two
INSERT INTO color VALUES
    (12483886), (6068543), (12477326), (10195992), (3955920), (2397892), (7752900), (13201502),
    (3312764), (5139606), (8417376), (3816114), (8672287), (4089894), (8797792), (6840848),
    (2374803), (1204868), (5123718), (9193530), (1858640), (3163748), (5260346), (2105456),
    (15785412), (13952716), (15783650), (15263432), (13555958), (12904694), (14734580),
    (14088447), (16777215), (0), (8421504);
INSERT INTO reason VALUES
    ('NP', 'New patient', 'NP45', 12483886), ('FU', 'Follow-up', 'OV15', 6068543),
    ('VA', 'Vaccination', 'VAC01', 12477326), ('PH', 'Physical', 'PE30', 10195992),
    ('UR', 'Urgent', 'OV30', 3955920), ('LA', 'Laboratory', 'LAB01', 2397892);
INSERT INTO printer VALUES
    ('S', 'Spool queue', 'LPT1'), ('2', 'Front office laser', 'LPT2'), ('7', 'Label printer', 'COM2'),
    ('8', 'Statements: back office', 'LPT3'), ('9', 'Export to disk', 'FILE');
-- Rights: 8 to read, 4 to add, 2 to modify, 1 to delete
INSERT INTO user_right VALUES
    ('dsmith', 'PATIENTS', 'E'), ('dsmith', 'SCHEDULE', 'F'), ('dsmith', 'PAYMENTS', 'C'),
    ('dsmith', 'ADJUSTMENTS', 'C'), ('dsmith', 'WRITEOFFS', '8'), ('dsmith', 'PREFERENCES', 'A'),
    ('dsmith', 'ERRORLOG', '8');
-- The colour of required fields is the sixth of the settings, the last that is sent; x'DF' separates.
INSERT INTO setting VALUES ('dsmith', CAST(x'DFDFDFDFDF' || '16444122' AS BLOB));
INSERT INTO code_table VALUES
    ('INS', 'Insurance Companies', 1, 1, 'Insurance Company List', 'Name', 'Code', 0, 0),
    ('PRV', 'Providers', 1, 1, 'Provider Roster', 'Last Name', 'Code', 1, 0),
    ('PRC', 'Procedures', 1, 1, 'Fee Schedule', 'Code', 'Description', 1, 0),
    ('PAY', 'Payment Types', 0, 1, 'Payment Type List', 'Description', 'Code', 0, 0);
-- Table, code, description, deleted, copay
INSERT INTO code VALUES
    ('INS', 'AETOS', 'Aetos Health Plan', 0, 2500),
    ('INS', 'BLUEC', 'Blue Canyon Mutual', 0, 3000),
    ('INS', 'CEDAR', 'Cedar Valley HMO', 0, 1500),
    ('INS', 'FRANC', 'Assurance Française', 0, 2000),
    ('INS', 'HARBR', 'Harbor Life & Health', 0, 2500),
    ('INS', 'MEDA', 'State Medical Aid', 0, 0),
    ('INS', 'MEDB', 'Federal Medical, Part B', 0, 2000),
    ('INS', 'NORTH', 'Northern Teachers'' Fund', 0, 1000),
    ('INS', 'OLDFD', 'Old Fields Cooperative', 1, 0),
    ('INS', 'SELF', 'Self-pay', 0, 6000),
    ('INS', 'UNION', 'Union Railway Plan', 0, 2500),
    ('INS', 'VETER', 'Veterans'' Cover', 0, 0),
    ('PRV', 'NGUYEN', 'Nguyen, Linh MD', 0, 0),
    ('PRV', 'PATEL', 'Patel, Asha MD', 0, 0),
    ('PRV', 'ROSSI', 'Rossi, Chiara NP', 0, 0),
    ('PRV', 'SMITH', 'Smith, Daniel MD', 0, 0),
    ('PRV', 'DUBOIS', 'Dubois, François MD (on leave)', 0, 0),
    ('PRV', 'WEISS', 'Weiß, Jörg MD (retired)', 1, 0),
    ('PRC', 'ECG12', 'Electrocardiogram, twelve leads', 0, 0),
    ('PRC', 'LAB01', 'Blood drawn, one sample', 0, 0),
    ('PRC', 'LAB02', 'Urine test, dip stick', 0, 0),
    ('PRC', 'OV15', 'Office visit, 15 minutes', 0, 0),
    ('PRC', 'OV30', 'Office visit, 30 minutes', 0, 0),
    ('PRC', 'NP45', 'New patient, 45 minutes', 0, 0),
    ('PRC', 'PE30', 'Physical examination', 0, 0),
    ('PRC', 'VAC01', 'Vaccine given, first', 0, 0),
    ('PRC', 'VAC02', 'Vaccine given, each further', 0, 0),
    ('PAY', 'CASH', 'Cash', 0, 0),
    ('PAY', 'CHECK', 'Check', 0, 0),
    ('PAY', 'CARD', 'Card', 0, 0);

CREATE TEMP TABLE service (id INTEGER PRIMARY KEY, name TEXT);
CREATE TEMP TABLE site (id INTEGER PRIMARY KEY, name TEXT);
CREATE TEMP TABLE last_name (id INTEGER PRIMARY KEY, name TEXT);
CREATE TEMP TABLE first_name (id INTEGER PRIMARY KEY, name TEXT);
CREATE TEMP TABLE street (id INTEGER PRIMARY KEY, name TEXT);
INSERT INTO temp.service (name) VALUES
    ('Biopsy'), ('Brace fitted'), ('Cast applied'), ('Cast removed'), ('Compression wrap'),
    ('Cryotherapy'), ('Drainage'), ('Dressing'), ('Electrotherapy'), ('Examination, brief'),
    ('Examination'), ('Foreign body'), ('Heat therapy'), ('Infusion'), ('Injection'),
    ('Joint fluid'), ('Laceration'), ('Light therapy'), ('Manipulation'), ('Massage'), ('MRI'),
    ('MRI, contrast'), ('Nerve block'), ('Nerve test'), ('Photograph'), ('Puncture'),
    ('Range of motion'), ('Reflex test'), ('Repair, simple'), ('Repair, layered'), ('Scan, CT'),
    ('Skin test'), ('Splint'), ('Strapping'), ('Strength test'), ('Suture removed'), ('Swab'),
    ('Therapy, first'), ('Therapy, next'), ('Traction'), ('Trigger point'), ('Ultrasound'),
    ('Wart removed'), ('Wound check'), ('Wound closed'), ('X-ray, one view'),
    ('X-ray, two views'), ('X-ray, three views');

INSERT INTO temp.site (name) VALUES
    ('ankle'), ('arm, lower'), ('arm, upper'), ('back, lower'), ('back, upper'), ('calf'),
    ('cheek'), ('chest'), ('chin'), ('ear'), ('elbow'), ('eyelid'), ('finger'), ('foot'),
    ('forehead'), ('hand'), ('heel'), ('hip'), ('jaw'), ('knee'), ('lip'), ('neck'), ('nose'),
    ('palm'), ('pelvis'), ('rib'), ('scalp'), ('shin'), ('shoulder'), ('sole'), ('thigh'),
    ('throat'), ('thumb'), ('toe'), ('wrist');

INSERT INTO temp.last_name (name) VALUES
    ('Adams'), ('Alvarez'), ('Baker'), ('Bélanger'), ('Brown'), ('Carter'), ('Castañeda'),
    ('Chen'), ('Clark'), ('Cohen'), ('Cooper'), ('Cruz'), ('Davis'), ('Diaz'), ('Edwards'),
    ('Evans'), ('Fischer'), ('Flores'), ('Foster'), ('González'), ('Gray'), ('Green'), ('Hall'),
    ('Harris'), ('Hernández'), ('Hill'), ('Howard'), ('Hughes'), ('Ibrahim'), ('Jackson'),
    ('Johnson'), ('Jones'), ('Kelly'), ('Kim'), ('King'), ('Lee'), ('Lewis'), ('López'), ('Lund'),
    ('Martin'), ('McKay'), ('Miller'), ('Mitchell'), ('Moore'), ('Morgan'), ('Müller'),
    ('Murphy'), ('Nelson'), ('O''Brien'), ('O''Hara'), ('Okafor'), ('Ortiz'), ('Parker'),
    ('Peterson'), ('Pham'), ('Phillips'), ('Price'), ('Quinn'), ('Reed'), ('Rivera'), ('Roberts'),
    ('Rogers'), ('Ruiz'), ('Sánchez'), ('Scott'), ('Sharma'), ('Silva'), ('Singh'), ('Stewart'),
    ('Strøm'), ('Taylor'), ('Thomas'), ('Torres'), ('Turner'), ('Vargas'), ('Walker'), ('Ward'),
    ('Watson'), ('White'), ('Wilson'), ('Wright'), ('Yilmaz'), ('Young'), ('Zhang');

INSERT INTO temp.first_name (name) VALUES
    ('Adam'), ('Agnes'), ('Alice'), ('Amir'), ('André'), ('Anna'), ('Ben'), ('Björn'), ('Carla'),
    ('Carlos'), ('Chloé'), ('Clara'), ('Daniel'), ('David'), ('Diana'), ('Edith'), ('Elena'),
    ('Emma'), ('Eric'), ('Eva'), ('Felix'), ('Grace'), ('Hannah'), ('Hugo'), ('Ines'), ('Isaac'),
    ('Jane'), ('José'), ('Julia'), ('Karl'), ('Kate'), ('Laura'), ('Leo'), ('Linda'), ('Louis'),
    ('Maria'), ('Mark'), ('Mei'), ('Nina'), ('Noah'), ('Olga'), ('Omar'), ('Oscar'), ('Paula'),
    ('Peter'), ('Rachel'), ('Renée'), ('Rosa'), ('Samuel'), ('Sarah'), ('Simon'), ('Sonia'),
    ('Theo'), ('Tomás'), ('Vera'), ('Victor'), ('Walter'), ('Yasmin'), ('Zoe');

INSERT INTO temp.street (name) VALUES
    ('Oak Street'), ('Mill Lane'), ('Harbor Road'), ('Park Avenue'), ('Church Street'),
    ('Lake Drive'), ('Hill Road'), ('Station Square');

-- A service at a part of the body each, until there are 5,000 codes
INSERT INTO code
SELECT 'PRC', 'P' || (999 + row_number() OVER (ORDER BY service.id, site.id, side.column1)),
    service.name || ', ' || site.name || side.column1, 0, 0
FROM temp.service, temp.site, (VALUES (''), (', left'), (', right')) AS side
ORDER BY service.id, site.id, side.column1
LIMIT 5000 - (SELECT count(*) FROM code);

-- The multiplications scatter the numbers.
INSERT INTO patient (number, last, first, born, phone, address, insurance, policy, balance)
WITH RECURSIVE person(number) AS (SELECT 10001 UNION ALL SELECT number + 1 FROM person LIMIT 2000)
SELECT number,
    (SELECT name FROM last_name WHERE id = 1 + (number * 2654435761 >> 9) % (SELECT count(*) FROM last_name)),
    (SELECT name FROM first_name WHERE id = 1 + (number * 2246822519 >> 11) % (SELECT count(*) FROM first_name)),
    date('1935-01-01', '+' || ((number * 3266489917 >> 7) % 31000) || ' days'),
    '(555) ' || (200 + (number * 668265263 >> 5) % 700) || '-' || (1000 + (number * 374761393 >> 6) % 9000),
    (1 + (number * 2654435761 >> 13) % 180) || ' ' ||
        (SELECT name FROM street WHERE id = 1 + (number * 2246822519 >> 13) % 8),
    (SELECT code FROM (SELECT code, row_number() OVER (ORDER BY code) AS place FROM code
        WHERE code_table = 'INS' AND deleted = 0) WHERE place = 1 + (number * 3266489917 >> 13) % 11),
    'M' || (100000 + (number * 668265263 >> 9) % 900000),
    CASE (number * 374761393 >> 11) % 4 WHEN 0 THEN 500 * (1 + (number * 2654435761 >> 15) % 40) ELSE 0 END
FROM person;

-- Who comes on the first day, and at which place after the visits of twenty past eight. (Qt takes a
-- colon before a digit for a parameter, in comments too.)
CREATE TEMP TABLE known (place INTEGER, number INTEGER, last TEXT, first TEXT, born TEXT, insurance TEXT,
    balance INTEGER);
INSERT INTO temp.known VALUES
    (0, 10117, 'García', 'Lucía', '1986-07-19', 'AETOS', 4000),
    (1, 10042, 'Abbott', 'Ann', '1958-11-02', 'MEDB', 0),
    (3, 10318, 'O''Neill', 'Brian', '1971-01-30', 'HARBR', 6250),
    (4, 10204, 'Dubois', 'François', '1949-05-08', 'FRANC', 0),
    (6, 10455, 'Jónsdóttir', 'Æsa', '1994-12-24', 'CEDAR', 1500),
    (9, 10520, 'Weiß', 'Jörg', '1963-03-17', 'UNION', 0),
    (12, 10611, 'D''Angelo', 'Sofía', '2015-09-01', 'NORTH', 0),
    (15, 10702, 'Nuñez', 'María José', '1979-04-11', 'MEDA', 0);
UPDATE patient SET last = known.last, first = known.first, born = known.born,
    insurance = known.insurance, balance = known.balance
FROM temp.known WHERE patient.number = known.number;
UPDATE patient SET alert = 1 WHERE number IN (10117, 10318);
INSERT INTO reminder VALUES
    (10117, 'Allergies', '-Penicillin'),
    (10117, 'Allergies', 'P-Latex, gloves only'),
    (10117, 'Balance', '-$40.00 open since January'),
    (10117, 'Balance', 'Pays $40.00 a month'),
    (10117, 'Insurance', 'New card in February'),
    (10117, 'Insurance', 'Referral needed for specialists'),
    (10318, 'Balance', '-Check returned in December'),
    (10318, 'Balance', 'Cash or card only'),
    (10204, 'Appointments', 'P-François prefers afternoons'),
    (10204, 'Language', 'French, interpreter for forms'),
    (10455, 'Names', 'Æsa is called “æsa” on old forms'),
    (10520, 'Names', 'Weiß is Weiss on the insurance card');

CREATE TEMP TABLE start (time TEXT, day TEXT, provider TEXT, dice INTEGER);
INSERT INTO temp.start
WITH RECURSIVE calendar(day) AS
    (SELECT '2024-02-27' UNION ALL SELECT date(day, '+1 day') FROM calendar WHERE day < '2024-03-18'),
hour(hour) AS (VALUES (8), (9), (10), (11), (13), (14), (15), (16)),
minute(minute) AS (VALUES (0), (20), (40)),
provider(number, provider) AS (VALUES (1, 'NGUYEN'), (2, 'PATEL'), (3, 'ROSSI'), (4, 'SMITH'))
SELECT printf('%02d:%02d', hour, minute), day, provider,
    (CAST(julianday(day) AS INTEGER) * 977 + number * 131 + hour * 17 + minute) * 2654435761 >> 9
FROM calendar, hour, minute, provider
WHERE strftime('%w', day) NOT IN ('0', '6');

-- Ten visits for each provider and day. States: 0 expected, 1 due, 2 checked in, 3 paid
INSERT INTO visit (day, time, patient, provider, reason, procedures, state)
WITH due(day, time, provider) AS (VALUES ('2024-03-05', '08:20', 'PATEL')),
ranked AS (
    SELECT start.*, due.day IS NOT NULL AS is_due, (dice % 100003 * 7919 >> 6) % 100 AS share, row_number() OVER (
        PARTITION BY start.day, start.provider ORDER BY due.day IS NULL, dice % 99991 * 7919 % 99991) AS place
    FROM temp.start LEFT JOIN due USING (day, time, provider))
SELECT day, time,
    CASE WHEN is_due THEN 10117 ELSE 10118 + (dice >> 4) % 1800 END,
    provider,
    CASE WHEN is_due OR share < 38 THEN 'FU' WHEN share < 52 THEN 'NP'
        WHEN share < 66 THEN 'VA' WHEN share < 80 THEN 'PH'
        WHEN share < 92 THEN 'LA' ELSE 'UR' END,
    '',
    CASE WHEN is_due THEN 1 WHEN day < '2024-03-05' OR (day = '2024-03-05' AND time < '08:20') THEN 3
        WHEN day = '2024-03-05' AND time = '08:20' THEN 2 ELSE 0 END
FROM ranked WHERE place <= 10
ORDER BY day, time, provider;

UPDATE visit SET patient = known.number
FROM temp.known, (SELECT id, row_number() OVER (ORDER BY time, provider) AS place FROM visit
    WHERE day = '2024-03-05' AND time > '08:20') AS later
WHERE visit.id = later.id AND later.place = known.place;

-- Earlier visits of the patient who is due
INSERT INTO visit (day, time, patient, provider, reason, procedures, state) VALUES
    ('2023-11-07', '09:40', 10117, 'PATEL', 'NP', 'NP45,LAB01', 3),
    ('2023-12-05', '10:20', 10117, 'PATEL', 'FU', 'OV30', 3),
    ('2024-01-09', '09:00', 10117, 'PATEL', 'FU', 'OV15,ECG12', 3),
    ('2024-02-06', '08:40', 10117, 'PATEL', 'FU', 'OV15', 3);
INSERT INTO payment (patient, posted, amount, adjustment, method, printer)
SELECT patient, day || 'T' || time || ':00', CASE reason WHEN 'NP' THEN 4000 ELSE 2500 END, 0,
    CASE id % 3 WHEN 0 THEN 'Cash' ELSE 'Card' END, 'Front office laser'
FROM visit WHERE state = 3 ORDER BY day, time;
