-- Sample data, second file: contracts of every type, their lines, the logs delivered under them,
-- surcharge and deduction lines. Needs sample_reference.sql.

-- Sales contracts. 5 is closed; 6 has an access level; 2 is visible on all levels on purpose;
-- 7 has no customer (0) and no delivery period; 16 is in the home currency.
SET IDENTITY_INSERT VERTRAEGE ON
INSERT INTO VERTRAEGE (ID_VERTRAG, VERTRAG_NAME, VER_TYPE, ID_FAKTART, INVDATE, DATE1, DATE2, DATE3, LIEFERVON, LIEFERBIS, KOPF1, KOPF2, KOPF3, KOPF4, NUMM1, NUMM2, NUMM3, RART_ID, BUCHNR_ID, EURO, ID_PERSONAL, ID_PERSONAL_LIEFERADRESSE, ID_MANDANTEN, ID_ACCESS_LEVELS, ACL_EMPTY, ABGESCHLOSSEN, ZUSATZTEXT, ZUSATZTEXT_1, ZUSATZTEXT_2) VALUES
(1, 'R-2025-001 Fichte Wolfsberg', 'R', 1, '20250107', '20250110', '20250114', NULL, '20250101', '20251231', 'Lieferung frei Werk Wolfsberg, Tor 2', 'Zahlung 14 Tage 2 % Skonto, 30 Tage netto', 'Werksvermessung nach ÖNORM L 1021', 'Anlieferung Mo bis Do, 6:00 bis 16:00', 12.5, 30, 2, 1, 1, 1, 10, 50, 1, NULL, NULL, 0, 'Zertifikat liegt dem Käufer vor.', NULL, 'Mindestlosgröße 25 Fm'),
(2, 'R-2025-002 Lärche Villach', 'R', 1, '20250203', NULL, NULL, NULL, '20250301', '20250930', 'Lieferung frei Lager Villach', 'Zahlung 30 Tage netto', 'Längen 4,0 m bis 6,0 m mit 10 cm Übermaß', NULL, 0, 30, NULL, 1, 2, 1, 11, 52, 2, NULL, 1, 0, NULL, NULL, NULL),
(3, 'R-2025-003 Faserholz Judenburg', 'R', 1, '20250401', '20250402', NULL, NULL, '20250505', '20250615', 'Lieferung frei Werk nach Wochenabruf', 'Zahlung 21 Tage netto', 'Verrechnung nach atro-Gewicht', NULL, 10, 21, NULL, 3, 1, 1, 12, 53, 1, NULL, 0, 0, 'Zufuhr nur mit Übernahmeschein.', 'Waage Nord', NULL),
(4, 'R-2025-004 Hackgut Wörgl', 'R', 1, '20241115', NULL, NULL, NULL, '20241201', '20250131', 'Lieferung frei Heizwerk Wörgl', 'Zahlung 14 Tage netto', 'Verrechnung nach Schüttraummeter', NULL, NULL, 14, NULL, 3, 1, 1, 14, 54, 1, NULL, NULL, NULL, NULL, NULL, NULL),
(5, 'R-2024-017 Käferholz Wolfsberg', 'R', 1, '20240612', '20240613', NULL, NULL, '20240701', '20241031', 'Lieferung frei Werk St. Andrä', 'Zahlung 30 Tage netto', NULL, NULL, 5, 30, NULL, 1, 1, 1, 10, 51, 1, NULL, 0, 1, 'Abgerechnet am 15.11.2024.', NULL, NULL),
(6, 'R-2026-001 Stangen Passau', 'R', 1, '20260112', NULL, NULL, NULL, '20260201', '20260430', 'Abholung ab Forststraße', 'Barverkauf bei Übernahme', NULL, NULL, NULL, NULL, NULL, 4, 2, 1, 15, NULL, 2, 5, 0, 0, NULL, NULL, NULL),
(7, 'R-2026-002 Vorvertrag Nadelholz', 'R', 1, '20260119', NULL, NULL, NULL, NULL, NULL, 'Mengen und Preise noch in Verhandlung', NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, 0, NULL, 1, NULL, NULL, NULL, NULL, NULL, NULL),
(16, 'R-2025-005 Schleifholz Amstetten', 'R', 1, '20250520', NULL, NULL, NULL, '20250601', '20261231', 'Lieferung frei Werk Amstetten', 'Zahlung 30 Tage netto', NULL, NULL, 7.25, 30, NULL, 1, 1, 0, 13, NULL, 1, NULL, NULL, 0, NULL, NULL, NULL)

-- Purchase, helper, haulage, harvesting, yarding, stumpage, scaling and agency contracts (A1 to A8).
-- 10 and 14 are closed; 14 has no customer at all; 17 has no lines yet.
INSERT INTO VERTRAEGE (ID_VERTRAG, VERTRAG_NAME, VER_TYPE, ID_FAKTART, INVDATE, LIEFERVON, LIEFERBIS, KOPF1, KOPF2, NUMM1, RART_ID, BUCHNR_ID, EURO, ID_PERSONAL, ID_PERSONAL_LIEFERADRESSE, ID_MANDANTEN, ID_ACCESS_LEVELS, ACL_EMPTY, ABGESCHLOSSEN) VALUES
(8, 'A1-2025-001 Einkauf Breitenau', 'A1', 2, '20250115', '20250115', '20251130', 'Übernahme an der Forststraße', 'Gutschrift binnen 21 Tagen', 13, 2, 3, 1, 30, NULL, 1, NULL, NULL, 0),
(9, 'A2-2025-001 Betreuung Bruck', 'A2', 3, '20250120', '20250201', '20251231', 'Betreuung der Kleinwaldbesitzer im Bezirk', NULL, NULL, 2, 4, 1, 20, NULL, 1, NULL, NULL, NULL),
(10, 'A3-2024-004 Fracht Leoben', 'A3', 4, '20240205', '20240301', '20241231', 'Fracht bis 60 km, Rundholzzug mit Kran', 'Zahlung 14 Tage', 60, 2, 5, 1, 40, NULL, 1, NULL, 0, 1),
(11, 'A4-2025-001 Ernte Admont', 'A4', 5, '20250303', '20250401', '20250831', 'Ernte mit Harvester, Rückung mit Forwarder', NULL, NULL, 2, 4, 1, 42, NULL, 2, NULL, NULL, 0),
(12, 'A5-2025-001 Seilbringung Schladming', 'A5', 6, '20250310', '20250601', '20251031', 'Bergauf-Seilung, Trassen bauseits', NULL, 450, 2, 4, 1, 43, NULL, 2, NULL, NULL, 0),
(13, 'A6-2025-001 Stockkauf Gußwerk', 'A6', 7, '20250218', '20250301', '20260228', 'Stockkauf samt Schlägerung, Mindesterlös vereinbart', NULL, NULL, 2, 3, 1, 31, NULL, 1, NULL, NULL, 0),
(14, 'A7-2024-002 Vermessung Graz', 'A7', 8, '20240110', '20240115', '20241215', NULL, NULL, NULL, NULL, 4, 1, NULL, NULL, 1, NULL, NULL, 1),
(15, 'A8-2025-001 Provision Gmunden', 'A8', 9, '20250402', '20250401', '20260331', 'Provision je vermitteltem Fm', NULL, 1.5, 2, 4, 1, 45, NULL, 2, NULL, NULL, NULL),
(17, 'A1-2026-001 Einkauf Mariahof', 'A1', 2, '20260205', '20260301', '20261031', NULL, NULL, NULL, 2, 3, NULL, 32, NULL, 1, NULL, 1, 0)

-- For comparing: 18 has every field, each with a value of its own; 19 only every second one. The places of
-- their lines run in another order than the keys.
INSERT INTO VERTRAEGE (ID_VERTRAG, VERTRAG_NAME, VER_TYPE, ID_FAKTART, INVDATE, DATE1, DATE2, DATE3, LIEFERVON, LIEFERBIS, KOPF1, KOPF2, KOPF3, KOPF4, KOPF5, KOPF6, KOPF7, KOPF8, KOPF9, KOPF10, NUMM1, NUMM2, NUMM3, NUMM4, NUMM5, NUMM6, NUMM7, NUMM8, NUMM9, NUMM10, RART_ID, BUCHNR_ID, EURO, ID_PERSONAL, ID_PERSONAL_LIEFERADRESSE, ID_MANDANTEN, ID_ACCESS_LEVELS, ACL_EMPTY, ABGESCHLOSSEN, ZUSATZTEXT, ZUSATZTEXT_1, ZUSATZTEXT_2) VALUES
(18, 'A6-2024-001 Stockkauf Obdach', 'A6', 7, '20240201', '20240202', '20240203', '20240204', '20240205', '20241206', 'Schlag Tannhof', 'Zahlung in drei Raten', 'Rinde beim Käufer', 'Auszeige durch den Förster', 'Rückegassen ausgesteckt', 'Bringung bei Frost', 'Waldort Abteilung 7', 'Schlagruhe im April', 'Reisig bleibt liegen', 'Haftung beim Käufer', 1.01, 20.02, 300.03, 4000.04, 50000.05, 6.06, 70.07, 800.08, 9000.09, 10000.1, 5, 4, 0, 33, 53, 2, 6, 0, 1, 'Stockkauf nach Hieb', 'Grenzen bezeichnet', 'Kaution hinterlegt'),
(19, 'A3-2024-002 Fracht Rohrbach', 'A3', 4, NULL, '20240302', NULL, '20240304', NULL, '20241106', 'Fracht nur tagsüber', NULL, 'Maut beim Auftraggeber', NULL, 'Ladezeit eine Stunde', NULL, 'Anmeldung per Telefon', NULL, 'Standgeld nach Tarif', NULL, 11.5, NULL, 13.25, NULL, 15.75, NULL, 17.05, NULL, 19.95, NULL, NULL, 5, 1, NULL, 54, NULL, NULL, 1, 1, NULL, 'Kette mitführen', NULL)

-- For the logistics coordination: 20 lasts over the turn of a year with 53 weeks, 21 has sixty helpers, 22 is a
-- purchase that takes provision reports, 23 has an apostrophe in its name and no lines.
INSERT INTO VERTRAEGE (ID_VERTRAG, VERTRAG_NAME, VER_TYPE, ID_FAKTART, INVDATE, LIEFERVON, LIEFERBIS, KOPF1, KOPF2, NUMM1, RART_ID, BUCHNR_ID, EURO, ID_PERSONAL, ID_PERSONAL_LIEFERADRESSE, ID_MANDANTEN, ID_ACCESS_LEVELS, ACL_EMPTY, ABGESCHLOSSEN) VALUES
(20, 'R-2026-003 Faserholz Sankt Veit', 'R', 1, '20261012', '20261123', '20270117', 'Lieferung frei Werk über den Jahreswechsel', 'Zahlung 45 Tage netto', 4.5, 3, 1, 1, 13, 53, 2, NULL, NULL, 0),
(21, 'R-2025-006 Industrieholz Bruck', 'R', 1, '20241216', '20241230', '20251228', 'Zufuhr nach Wochenplan', 'Zahlung 28 Tage netto', 28, 1, 2, 1, 12, 50, 1, NULL, NULL, NULL),
(22, 'A1-2025-002 Einkauf Sankt Lambrecht', 'A1', 2, '20250224', '20250303', '20250323', 'Übernahme an der Waage', 'Gutschrift binnen 10 Tagen', 10, 2, 3, 1, 33, NULL, 2, NULL, NULL, 0),
(23, 'A1-2025-003 Einkauf D''Angelo', 'A1', 2, '20250610', '20250701', NULL, NULL, NULL, NULL, NULL, 3, NULL, 30, NULL, 1, NULL, NULL, NULL)
SET IDENTITY_INSERT VERTRAEGE OFF
GO

-- Price lines. Line 5 carries a selection that only the selection dialog writes, line 8 none at all;
-- the lines of contract 16 have gaps in their order, as an import leaves them.
SET IDENTITY_INSERT VERTRAG_PREISE ON
INSERT INTO VERTRAG_PREISE (ID, ID_VERTRAG, ORDNUNG, BEZEICHNUNG, SELEKTION_VALUE, MSZ_PERCENT, PREIS, EURO, ID_WARENEINHEIT, PREIS_ABR2) VALUES
(1, 1, 1, 'Fichte Blochholz A/B', '83 IN (''FI'') ;87 IN (''B'') ;90 IN (''A'', ''B'') ;', 2.5, 98.5, 1, 1, NULL),
(2, 1, 2, 'Fichte/Tanne C und Käferholz', '83 IN (''FI'', ''TA'') ;90 IN (''C'', ''CX'') ;', NULL, 76.25, 1, 1, NULL),
(3, 1, 3, 'Kiefer Langholz', '83 IN (''FI'', ''KI'') ;87 IN (''L'') ;94 IN (4.5, 5) ;', 0, 71, 1, 1, 12.5),
(4, 2, 1, 'Lärche 2b+', '83 IN (''LA'') ;93 IN (''2b'', ''3a'', ''3b'') ;', NULL, 142.75, 1, 1, NULL),
(5, 2, 2, 'Übriges Nadelholz ab 4 m', '83 NOT IN (''LA'', ''BU'', ''EI'') ;94 BETWEEN 4 AND 6 ;', NULL, 89, 1, 1, NULL),
(6, 3, 1, 'Faserholz Nadel', '83 IN (''FI'', ''KI'') ;87 IN (''F'') ;', NULL, 112.4, 1, 4, 109.9),
(7, 3, 2, 'Faserholz Lärche', '83 IN (''LA'') ;87 IN (''F'') ;', NULL, 64.2, 1, 5, NULL),
(8, 4, 1, 'Waldhackgut G50', NULL, NULL, 22.5, 1, 3, NULL),
(9, 6, 1, 'Stangen Fichte', '83 IN (''FI'') ;87 IN (''ST'') ;', NULL, 3.85, 1, 6, NULL),
(10, 6, 2, 'Zaunpfähle Lärche', '83 IN (''LA'') ;87 IN (''ST'') ;', NULL, 620, 1, 7, NULL),
(11, 16, 3, 'Schleifholz Fichte', '83 IN (''FI'') ;87 IN (''S'') ;', NULL, 12.34, 0, 1, NULL),
(12, 16, 7, 'Schleifholz Tanne', '83 IN (''TA'') ;87 IN (''S'') ;', NULL, 12.345, 0, 1, 3),
(13, 16, 9, 'Schleifholz Bruch', '83 IN (''FI'', ''TA'') ;90 IN (''CX'') ;', 1.75, 80, 1, 2, NULL),
(14, 8, 1, 'Einkauf Blochholz', '83 IN (''FI'') ;87 IN (''B'') ;', NULL, 84, 1, 1, NULL),
(15, 9, 1, 'Betreuung je Fm', '83 IN (''FI'', ''TA'', ''KI'', ''LA'') ;', NULL, 1.2, 1, 1, NULL),
(16, 10, 1, 'Fracht je Fm', '87 IN (''L'', ''B'', ''F'') ;', NULL, 11.8, 1, 1, NULL),
(17, 11, 1, 'Ernte und Rückung', '83 IN (''FI'') ;', NULL, 24.5, 1, 1, NULL),
(18, 12, 1, 'Seilbringung', '83 IN (''FI'', ''LA'') ;', NULL, 38.9, 1, 8, NULL),
(19, 13, 1, 'Fichte am Stock', '83 IN (''FI'') ;93 IN (''2a'', ''2b'') ;', NULL, 52, 1, 1, 34.5),
(20, 13, 2, 'Buche am Stock', '83 IN (''BU'') ;', NULL, 41, 1, 1, 22.75),
(21, 15, 1, 'Provision', '83 IN (''FI'') ;', NULL, 0.8, 1, 1, NULL),
(22, 5, 1, 'Käferholz', '83 IN (''FI'') ;90 IN (''CX'') ;', NULL, 61, 1, 1, NULL),
(23, 18, 3, 'Buche am Hang', '83 IN (''BU'') ;87 IN (''BR'') ;90 IN (''D'') ;93 IN (''2b'') ;94 IN (1) ;', 3.3, 33.33, 1, 4, 13.31),
(24, 19, 2, 'Fracht leer', NULL, 2.2, NULL, 1, NULL, 1.5),
(25, 18, 1, 'Fichte am Hang', '83 IN (''FI'') ;87 IN (''B'') ;90 IN (''A'') ;93 IN (''1b'') ;94 IN (4) ;', 1.1, 11.11, 0, 2, 11.22),
(26, 19, 1, 'Fracht voll', '87 IN (''L'') ;93 IN (''3a'') ;', NULL, 9.99, NULL, 3, NULL),
(27, 18, 2, 'Lärche am Hang', '83 IN (''LA'') ;87 IN (''L'') ;90 IN (''B'') ;93 IN (''2a'') ;94 IN (5) ;', 2.2, 22.22, 0, 8, 12.21)
SET IDENTITY_INSERT VERTRAG_PREISE OFF
GO

-- Quantity lines. Line 2 overlaps line 1, line 3 takes what is left; line 5 only the dialog could write.
SET IDENTITY_INSERT VERTRAG_MENGEN ON
INSERT INTO VERTRAG_MENGEN (ID, ID_VERTRAG, ORDNUNG, BEZEICHNUNG, SELEKTION_VALUE, MENGE, ID_WARENEINHEIT) VALUES
(1, 1, 1, 'Fichte', '83 IN (''FI'') ;', 100, 1),
(2, 1, 2, 'Fichte und Kiefer', '83 IN (''FI'', ''KI'') ;', 250.5, 1),
(3, 1, 3, 'Restliches Nadelholz', NULL, 100, 2),
(4, 3, 1, 'Faserholz Nadel', '83 IN (''FI'', ''KI'') ;87 IN (''F'') ;', 1200, 4),
(5, 3, 2, 'Faserholz übrige Baumarten', '83 NOT IN (''FI'', ''KI'') ;', 300, 5),
(6, 4, 1, 'Waldhackgut', '83 IN (''FI'') ;87 IN (''W'') ;', 800, 3),
(7, 4, 2, 'Astmaterial', '87 IN (''BR'') ;', 50, 10),
(8, 6, 1, 'Stangen Fichte', '83 IN (''FI'') ;93 IN (''1a'') ;', 2000, 6),
(9, 6, 2, 'Zaunpfähle Lärche', '83 IN (''LA'') ;', 40, 7),
(10, 2, 1, 'Lärche', '83 IN (''LA'') ;94 IN (4, 4.5, 5) ;', 180, 8),
(11, 5, 1, 'Käferholz', '90 IN (''CX'') ;', 420, 1),
(12, 7, 1, 'Nadelholz, Einheit offen', '83 IN (''FI'') ;', 500, NULL),
(13, 8, 1, 'Blochholz', '83 IN (''FI'') ;', 60, 1),
(14, 8, 2, 'Kiefer', '83 IN (''KI'') ;', 25, 1),
(15, 9, 1, 'Betreute Menge', NULL, 900, 1),
(16, 11, 1, 'Erntemenge', '83 IN (''FI'') ;', 1500, 1),
(17, 12, 1, 'Seilmenge', NULL, 600, 8),
(18, 13, 1, 'Fichte am Stock', '83 IN (''FI'') ;', 350, 1),
(19, 13, 2, 'Buche am Stock', '83 IN (''BU'') ;', 120, 2),
(20, 16, 2, 'Schleifholz', '87 IN (''S'') ;', 900, 1),
(21, 16, 5, 'Schleifholz Bruch', '90 IN (''CX'') ;', 60, 2),
(22, 18, 3, 'Buche', '83 IN (''BU'') ;', 30.5, 6),
(23, 19, 2, 'Rückfracht', NULL, NULL, 7),
(24, 18, 1, 'Fichte', '83 IN (''FI'') ;', 10.25, 2),
(25, 19, 1, 'Hinfracht', '83 IN (''TA'') ;', 44.4, NULL),
(26, 18, 2, 'Lärche', '83 IN (''LA'') ;', 200.125, 4),
(27, 20, 2, 'Faserholz Lärche', '83 IN (''LA'') ;', 320, 1),
(28, 21, 1, 'Industrieholz Nadel', '83 IN (''FI'', ''TA'', ''KI'') ;', 4800, 4),
(29, 20, 1, 'Faserholz Nadel', '83 IN (''FI'', ''KI'') ;', 640.5, 1),
(30, 22, 2, 'Käferholz, Einheit offen', NULL, 15, NULL),
(31, 21, 2, 'Industrieholz Laub', '83 IN (''BU'') ;', 380, 5),
(32, 22, 1, 'Käferholz', '90 IN (''CX'') ;', 75.25, 2)
SET IDENTITY_INSERT VERTRAG_MENGEN OFF
GO

-- Delivered logs: 1 to 6 for contract 1, 10 to 12 for contract 3, 20 to 22 for contract 4,
-- 30 to 33 for contract 6, 40 for the stumpage contract 13; log 50 is not booked anywhere; 60 to 62, in
-- which no measure is like another, for contract 18.
SET IDENTITY_INSERT LOGS ON
INSERT INTO LOGS (ID_LOG, NUMMER, DATUM, HA, HS, GKL, STKL, LANGE, MENGE, DSART, KUBATUR, KUBRM, KUBATRO, STK, UFAKT_RM, UFAKT_ATO, UFAKT_STK, UFAKT_LUT) VALUES
(1, 250001, '20250120', 'FI', 'B', 'A', '3a', 4, 20.5, 1, 20.5, NULL, NULL, 31, 0.7, 2.4, 0.66, 1.2),
(2, 250002, '20250121', 'FI', 'B', 'B', '2b', 5, 17, 1, 17, NULL, NULL, 40, 0.7, 2.4, 0.43, 1.2),
(3, 250003, '20250210', 'KI', 'L', 'B', '3a', 4.5, 12.25, 1, 12.25, NULL, NULL, 11, 0.68, 2.2, 1.11, 1.1),
(4, 250004, '20250211', 'TA', 'B', 'C', '3b', 4, 7, 1, 7, NULL, NULL, 9, 0.7, NULL, NULL, NULL),
(5, 250005, '20250305', 'LA', 'F', 'D', '1b', 2, 14.5, 2, 10.15, 14.5, NULL, NULL, 0.7, NULL, NULL, NULL),
(6, 250006, '20250306', 'DG', 'B', 'B', '4', 5, 7, 1, 7, NULL, NULL, 5, NULL, NULL, NULL, NULL),
(10, 250010, '20250506', 'FI', 'F', 'D', '1b', 2, 24.8, 4, 52, NULL, 24.8, NULL, 0.65, 2.1, NULL, 1.15),
(11, 250011, '20250513', 'KI', 'F', 'D', '2a', 2, 12, 1, 30, NULL, NULL, NULL, 0.65, 2.5, NULL, 1.1),
(12, 250012, '20250514', 'LA', 'F', 'D', '2a', 2, 15, 1, 18, NULL, NULL, NULL, 0.65, 0, NULL, 1.2),
(20, 240020, '20241210', 'FI', 'W', NULL, NULL, NULL, 90, 2, 36, 90, NULL, NULL, 0.4, NULL, NULL, 1.3),
(21, 250021, '20250114', 'FI', 'W', NULL, NULL, NULL, 100, 1, 40, NULL, NULL, NULL, 0.4, NULL, NULL, 1.3),
(22, 250022, '20250115', 'BU', 'BR', NULL, NULL, NULL, 8, 1, 8, NULL, NULL, NULL, 0, NULL, NULL, 1.05),
(30, 260030, '20260210', 'FI', 'ST', NULL, '1a', 3, 180, 3, 9, NULL, NULL, 180, NULL, NULL, 0.05, NULL),
(31, 260031, '20260211', 'FI', 'ST', NULL, '1a', 3, 5, 1, 5, NULL, NULL, NULL, NULL, NULL, 0.05, NULL),
(32, 260032, '20260212', 'LA', 'ST', NULL, '1a', 2.5, 250, 3, 6.25, NULL, NULL, 250, NULL, NULL, 0.025, NULL),
(33, 260033, '20260213', 'FI', 'ST', NULL, '1b', 3, 60, 3, 4.2, NULL, NULL, 60, NULL, NULL, 0.07, NULL),
(40, 250040, '20250422', 'FI', 'B', 'B', '2a', 4, 44.6, 1, 44.6, NULL, NULL, 120, 0.7, NULL, NULL, NULL),
(50, 250050, '20250604', 'FI', 'B', 'B', '3a', 4, 33.3, 1, 33.3, NULL, NULL, 50, 0.7, 2.4, NULL, 1.2),
(60, 240060, '20240611', 'FI', 'B', 'A', '1b', 4, 12.6, 1, 12.6, 17.1, 5.3, 21, 0.7, 2.5, 0.6, 1.8),
(61, 240061, '20240612', 'LA', 'L', 'B', '2a', 5, 13, 1, 13, 18.2, 6.4, 22, 0.8, 2.6, 0.65, 1.7),
(62, 240062, '20240613', 'BU', 'BR', 'D', '2b', 1, 23, 3, 14.4, 19.3, 7.5, 23, 0.9, 2.4, 0.75, 1.6)
SET IDENTITY_INSERT LOGS OFF
GO

-- A log is booked by contract name, once for each contract type under which it was invoiced.
INSERT INTO LOGS_RECH (ID_LOG, R_VERTRAG, A1_VERTRAG, A2_VERTRAG, A6_VERTRAG, A2_KUNDE) VALUES
(1, 'R-2025-001 Fichte Wolfsberg', 'A1-2025-001 Einkauf Breitenau', 'A2-2025-001 Betreuung Bruck', NULL, 20),
(2, 'R-2025-001 Fichte Wolfsberg', 'A1-2025-001 Einkauf Breitenau', NULL, NULL, NULL),
(3, 'R-2025-001 Fichte Wolfsberg', 'A1-2025-001 Einkauf Breitenau', 'A2-2025-001 Betreuung Bruck', NULL, 20),
(4, 'R-2025-001 Fichte Wolfsberg', NULL, NULL, NULL, NULL),
(5, 'R-2025-001 Fichte Wolfsberg', NULL, NULL, NULL, NULL),
(6, 'R-2025-001 Fichte Wolfsberg', NULL, NULL, NULL, NULL),
(10, 'R-2025-003 Faserholz Judenburg', NULL, 'A2-2025-001 Betreuung Bruck', NULL, 20),
(11, 'R-2025-003 Faserholz Judenburg', NULL, NULL, NULL, 20),
(12, 'R-2025-003 Faserholz Judenburg', NULL, NULL, NULL, 21),
(20, 'R-2025-004 Hackgut Wörgl', NULL, NULL, NULL, 22),
(21, 'R-2025-004 Hackgut Wörgl', NULL, NULL, NULL, 22),
(22, 'R-2025-004 Hackgut Wörgl', NULL, NULL, NULL, NULL),
(30, 'R-2026-001 Stangen Passau', NULL, NULL, NULL, NULL),
(31, 'R-2026-001 Stangen Passau', NULL, NULL, NULL, NULL),
(32, 'R-2026-001 Stangen Passau', NULL, NULL, NULL, NULL),
(33, 'R-2026-001 Stangen Passau', NULL, NULL, NULL, NULL),
(40, NULL, NULL, NULL, 'A6-2025-001 Stockkauf Gußwerk', NULL),
(60, NULL, NULL, NULL, 'A6-2024-001 Stockkauf Obdach', NULL),
(61, NULL, NULL, NULL, 'A6-2024-001 Stockkauf Obdach', NULL),
(62, NULL, NULL, NULL, 'A6-2024-001 Stockkauf Obdach', NULL)
GO

-- Surcharge and deduction lines. STATISTIK is the place in the list of statistics; the reference
-- lines are numbered as the user sees them, from 1. One contract has all sixteen lines. The last one has
-- what the screen does not let be saved: a line without a value, one without a statistic, and a gap; its
-- model is no longer kept.
INSERT INTO ABSCHLAG (RECH_NAME, VER_TYPE, LINE_NUM, ABS_MODEL, STATISTIK, BEZEICH, WERT_TEXT, WERT_LINE, SUBSET_DEF, ART_ID) VALUES
('R-2025-001 Fichte Wolfsberg', 'V', 0, 'Sägewerk Standard', 2, 'Rindenabzug Fichte', '-10', NULL, '83 IN (''FI'') ;', 2),
('R-2025-001 Fichte Wolfsberg', 'V', 1, 'Sägewerk Standard', 3, 'Käferholzabschlag', '-25,75', '1', '90 IN (''CX'') ;', 3),
('R-2025-001 Fichte Wolfsberg', 'V', 2, 'Sägewerk Standard', 13, 'Skonto', '-2', '1,2', NULL, NULL),
('R-2025-003 Faserholz Judenburg', 'V', 0, NULL, 5, 'Frachtkostenersatz', '8,5', NULL, NULL, 1),
('A1-2025-001 Einkauf Breitenau', 'V1', 0, 'Einkauf Kleinwald', 11, 'Verbandsbeitrag', '-0,4', NULL, NULL, 4),
('A1-2025-001 Einkauf Breitenau', 'V1', 1, 'Einkauf Kleinwald', 7, 'Wegebenützung', '-1,2', '1', NULL, NULL),
('A6-2024-001 Stockkauf Obdach', 'V', 0, 'Sägewerk Altbestand', 2, 'Rindenabzug Fichte', '-10', NULL, NULL, 2),
('A6-2024-001 Stockkauf Obdach', 'V6', 0, 'Stockkauf Bauernwald', 12, 'Vermessung je Stück', '1,235', NULL, '83 IN (''BU'') ;', 5),
('R-2025-005 Schleifholz Amstetten', 'V', 0, NULL, 1, 'Mengenstaffel', '1,50', NULL, NULL, NULL),
('R-2025-005 Schleifholz Amstetten', 'V', 1, NULL, 2, 'Rindenabzug', '-10', '1', NULL, NULL),
('R-2025-005 Schleifholz Amstetten', 'V', 2, NULL, 3, 'Güteabschlag', '-3,25', '1,2', NULL, NULL),
('R-2025-005 Schleifholz Amstetten', 'V', 3, NULL, 4, 'Zuschlag zertifiziert', '2', '2,3', NULL, NULL),
('R-2025-005 Schleifholz Amstetten', 'V', 4, NULL, 5, 'Fracht', '8,50', '3,4', NULL, NULL),
('R-2025-005 Schleifholz Amstetten', 'V', 5, NULL, 6, 'Manipulation', '-1,20', '4,5', NULL, NULL),
('R-2025-005 Schleifholz Amstetten', 'V', 6, NULL, 7, 'Wegebenützung', '-0,75', '5,6', NULL, NULL),
('R-2025-005 Schleifholz Amstetten', 'V', 7, NULL, 8, 'Rabatt', '-1', '6,7', NULL, NULL),
('R-2025-005 Schleifholz Amstetten', 'V', 8, NULL, 9, 'Bonus', '0,50', '7,8', NULL, NULL),
('R-2025-005 Schleifholz Amstetten', 'V', 9, NULL, 10, 'Provision', '-2', '8,9', NULL, NULL),
('R-2025-005 Schleifholz Amstetten', 'V', 10, NULL, 11, 'Verbandsbeitrag', '-0,40', '9,10', NULL, NULL),
('R-2025-005 Schleifholz Amstetten', 'V', 11, NULL, 12, 'Vermessung', '-1,24', '10,11', NULL, NULL),
('R-2025-005 Schleifholz Amstetten', 'V', 12, NULL, 13, 'Skonto', '-2', '11,12', NULL, NULL),
('R-2025-005 Schleifholz Amstetten', 'V', 13, NULL, 14, 'Rundung', '0,01', '12,13', NULL, NULL),
('R-2025-005 Schleifholz Amstetten', 'V', 14, NULL, 1, 'Mengenstaffel Nachtrag', '1', '13,14', NULL, NULL),
('R-2025-005 Schleifholz Amstetten', 'V', 15, NULL, 2, 'Rindenabzug Nachtrag', '-0,50', '14,15', NULL, NULL),
('R-2026-001 Stangen Passau', 'V', 0, 'Stangen alt', 4, 'Zuschlag für zertifiziertes Rundholz, Reviere Nord', '1.50', NULL, NULL, 6),
('R-2026-001 Stangen Passau', 'V', 1, 'Stangen alt', 3, 'Güteabschlag', NULL, '1', '90 IN (''C'') ;', NULL),
('R-2026-001 Stangen Passau', 'V', 2, 'Stangen alt', NULL, 'Abzug ohne Statistik', '-5,00', '1,3', NULL, NULL),
('R-2026-001 Stangen Passau', 'V', 15, 'Stangen alt', 14, 'Rundung', '0,01', '1', NULL, NULL)
GO
