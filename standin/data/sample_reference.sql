-- Sample data, first file: persons, units, classes, catalogues. All names are invented.
-- Valid on a SQL Server and on the embedded engine; dates are 'yyyymmdd', which every login reads alike.

-- Own companies, for which contracts are made. The third is no longer in use.
SET IDENTITY_INSERT PERSONAL ON
INSERT INTO PERSONAL (ID_PERSONAL, NUMMER, KURZBEZEICHNUNG, ANREDE, [NAME], STRASSE, PLZ, ORT, EMAIL, TELEFON, [DISABLE], MANDANT) VALUES
(1, 100, 'Forstgemeinschaft Grüntal', 'Firma', 'Forstgemeinschaft Grüntal', 'Waldstraße 1', '8700', 'Leoben', 'office@gruental.example', '+43 3842 555 100', NULL, 1),
(2, 101, 'Holzkontor Ennsblick', 'Firma', 'Holzkontor Ennsblick', 'Bahnhofplatz 7', '8940', 'Liezen', 'kontor@ennsblick.example', '+43 3612 555 200', 0, 1),
(3, 102, 'Altmandant Murtal', 'Firma', 'Altmandant Murtal', 'Hauptplatz 3', '8850', 'Murau', NULL, NULL, 1, 1)

-- Customers of the sales contracts (type R); one is disabled, one belongs to access level 5.
INSERT INTO PERSONAL (ID_PERSONAL, NUMMER, KURZBEZEICHNUNG, ANREDE, [NAME], VORNAME, POSTFACH, STRASSE, PLZ, ORT, EMAIL, TELEFON, HANDY, [DISABLE], ID_ACCESS_LEVELS, KUNDE) VALUES
(10, 2010, 'Sägewerk Kärnthaler', 'Firma', 'Sägewerk Kärnthaler', NULL, 'Postfach 12', 'Industriestraße 14', '9400', 'Wolfsberg', 'einkauf@kaernthaler.example', '+43 4352 555 10', NULL, NULL, NULL, 1),
(11, 2011, 'D''Angelo Legnami', 'Herr', 'D''Angelo', 'Giuseppe', NULL, 'Draulände 22', '9500', 'Villach', 'giuseppe@dangelo.example', '+43 4242 555 11', '+43 664 555 0011', NULL, NULL, 1),
(12, 2012, 'Zellstoff Möderbrugg', 'Firma', 'Zellstoff Möderbrugg', NULL, 'Postfach 3', 'Werkstraße 2', '8750', 'Judenburg', 'holz@zellstoff-moederbrugg.example', '+43 3572 555 12', NULL, 0, NULL, 1),
(13, 2013, 'Papier Ötscherland', 'Firma', 'Papier Ötscherland', NULL, NULL, 'Ybbsufer 40', '3300', 'Amstetten', 'rundholz@oetscherland.example', '+43 7472 555 13', NULL, 0, NULL, 1),
(14, 2014, 'Biomasse Wörgl', 'Firma', 'Biomasse Wörgl', NULL, NULL, 'Innstraße 9', '6300', 'Wörgl', NULL, '+43 5332 555 14', NULL, 0, NULL, 1),
(15, 2015, 'Tischlerei Großmann', 'Frau', 'Großmann', 'Dörte', NULL, 'Ilzleite 5', '94034', 'Passau', 'd.grossmann@tischlerei.example', '+49 851 555 15', '+49 171 555 0015', 0, 5, 1),
(16, 2016, 'Jäger Rundholz', 'Herr', 'Jäger', 'Konrad', NULL, 'Donaukai 1', '94469', 'Deggendorf', NULL, NULL, NULL, 1, NULL, 1)

-- Forest helpers (ABRECH2). Number 3005 is disabled; 3002 and 3007 have no mail address.
INSERT INTO PERSONAL (ID_PERSONAL, NUMMER, KURZBEZEICHNUNG, ANREDE, [NAME], VORNAME, STRASSE, PLZ, ORT, EMAIL, TELEFON, HANDY, [DISABLE], ABRECH2) VALUES
(20, 3001, 'Huber Josef', 'Herr', 'Huber', 'Josef', 'Sonnleiten 4', '8600', 'Bruck an der Mur', 'josef.huber@helfer.example', '+43 3862 555 20', '+43 664 555 0020', NULL, 1),
(21, 3002, 'Müller Käthe', 'Frau', 'Müller', 'Käthe', 'Am Bühel 17', '8680', 'Mürzzuschlag', NULL, '+43 3852 555 21', '+43 664 555 0021', 0, 1),
(22, 3003, 'Öllinger Franz', 'Herr', 'Öllinger', 'Franz', 'Schattseite 2', '8792', 'Sankt Peter-Freienstein', 'franz.oellinger@helfer.example', NULL, '+43 664 555 0022', 0, 1),
(23, 3004, 'Bäumler Agnes', 'Frau', 'Bäumler', 'Agnes', 'Grabenweg 31', '8713', 'Sankt Stefan ob Leoben', 'agnes.baeumler@helfer.example', NULL, '+43 664 555 0023', 0, 1),
(24, 3005, 'Steiner Alois', 'Herr', 'Steiner', 'Alois', 'Dorf 8', '8770', 'Sankt Michael', 'alois.steiner@helfer.example', NULL, NULL, 1, 1),
(25, 3006, 'Straßer Günther', 'Herr', 'Straßer', 'Günther', 'Lindenallee 3', '8720', 'Knittelfeld', 'guenther.strasser@helfer.example', NULL, '+43 664 555 0025', 0, 1),
(26, 3007, 'Ünal Deniz', 'Herr', 'Ünal', 'Deniz', 'Murweg 12', '8740', 'Zeltweg', NULL, NULL, '+43 664 555 0026', NULL, 1)

-- Forest owners, from whom timber is bought (type A1); two of them also sell on the stump (type A6).
INSERT INTO PERSONAL (ID_PERSONAL, NUMMER, KURZBEZEICHNUNG, ANREDE, [NAME], VORNAME, STRASSE, PLZ, ORT, EMAIL, [DISABLE], ABRECH1, ABRECH6) VALUES
(30, 4001, 'Gruber Maria', 'Frau', 'Gruber', 'Maria', 'Hochegg 1', '8614', 'Breitenau', 'maria.gruber@wald.example', NULL, 1, 0),
(31, 4002, 'Lärchbauer Peter', 'Herr', 'Lärchbauer', 'Peter', 'Lärchkogel 6', '8632', 'Gußwerk', NULL, 0, 1, 1),
(32, 4003, 'Köck Elfriede', 'Frau', 'Köck', 'Elfriede', 'Zirbenweg 9', '8812', 'Mariahof', NULL, 0, 1, NULL),
(33, 4004, 'Zöhrer Karl', 'Herr', 'Zöhrer', 'Karl', 'Tannhof 2', '8742', 'Obdach', 'karl.zoehrer@wald.example', 0, 1, 1)

-- Carriers, harvesters, cable yarding, scalers, agents (types A3 to A8).
INSERT INTO PERSONAL (ID_PERSONAL, NUMMER, KURZBEZEICHNUNG, ANREDE, [NAME], STRASSE, PLZ, ORT, TELEFON, [DISABLE], ABRECH3, ABRECH4, ABRECH5, ABRECH7, ABRECH8) VALUES
(40, 5001, 'Fuhrwerk Reisinger', 'Firma', 'Fuhrwerk Reisinger', 'Mautweg 5', '8700', 'Leoben', '+43 3842 555 40', NULL, 1, NULL, NULL, NULL, NULL),
(41, 5002, 'Fuhrwerk Wögerbauer', 'Firma', 'Fuhrwerk Wögerbauer', 'Güterweg 8', '4150', 'Rohrbach', '+43 7289 555 41', 0, 1, NULL, NULL, NULL, NULL),
(42, 5101, 'Holzernte Aigner', 'Firma', 'Holzernte Aigner', 'Forststraße 20', '8911', 'Admont', '+43 3613 555 42', 0, NULL, 1, NULL, NULL, NULL),
(43, 5201, 'Seilbringung Kögl', 'Firma', 'Seilbringung Kögl', 'Bergweg 3', '8970', 'Schladming', NULL, 0, NULL, NULL, 1, NULL, NULL),
(44, 5301, 'Messdienst Plöderl', 'Herr', 'Plöderl', 'Ring 14', '8010', 'Graz', NULL, 0, NULL, NULL, NULL, 1, NULL),
(45, 5401, 'Agentur Traxl', 'Frau', 'Traxl', 'Seegasse 2', '4810', 'Gmunden', NULL, 0, NULL, NULL, NULL, NULL, 1)

-- Delivery addresses and the customer that they belong to. The last is disabled.
INSERT INTO PERSONAL (ID_PERSONAL, NUMMER, KURZBEZEICHNUNG, [NAME], STRASSE, PLZ, ORT, [DISABLE], LIEFERADRESSE, ID_PERSONAL_BESITZER) VALUES
(50, 6001, 'Werk Wolfsberg', 'Werk Wolfsberg, Tor 2', 'Industriestraße 16', '9400', 'Wolfsberg', NULL, 1, 10),
(51, 6002, 'Werk St. Andrä', 'Werk St. Andrä, Rundholzplatz', 'Lavantweg 1', '9433', 'St. Andrä', 0, 1, 10),
(52, 6003, 'Lager Villach', 'Lager Villach', 'Draulände 24', '9500', 'Villach', 0, 1, 11),
(53, 6004, 'Holzplatz Judenburg', 'Holzplatz Judenburg', 'Werkstraße 4', '8750', 'Judenburg', 0, 1, 12),
(54, 6005, 'Heizwerk Wörgl', 'Heizwerk Wörgl, Waage Süd', 'Innstraße 11', '6300', 'Wörgl', 0, 1, 14),
(55, 6006, 'Werk Gmünd', 'Werk Gmünd (aufgelassen)', 'Fabriksgasse 1', '3950', 'Gmünd', 1, 1, 12)
SET IDENTITY_INSERT PERSONAL OFF
GO

-- Units. 'Stunde' is no unit of timber; 'Bund' has no measure, so nothing can be counted in it.
SET IDENTITY_INSERT WARENEINHEIT ON
INSERT INTO WARENEINHEIT (EINHEIT_ID, EINHEIT, HOLZ, LDNR, FM, RM, SRM, GEWICHT_ATRO, GEWICHT_LUTRO, STUCK, HSTUCK) VALUES
(1, 'Fm', 1, 10, 1, 0, 0, 0, 0, 0, 0),
(2, 'Rm', 1, 30, 0, 1, 0, 0, 0, 0, 0),
(3, 'SRm', 1, 40, 0, 0, 1, 0, 0, 0, 0),
(4, 'atro-t', 1, 50, NULL, NULL, NULL, 1, NULL, NULL, NULL),
(5, 'lutro-t', 1, 60, NULL, NULL, NULL, NULL, 1, NULL, NULL),
(6, 'Stück', 1, 70, 0, 0, 0, 0, 0, 1, 0),
(7, '100 Stück', 1, 80, 0, 0, 0, 0, 0, 0, 1),
(8, 'Fm o.R.', 1, 20, 1, 0, 0, 0, 0, 0, 0),
(9, 'Stunde', 0, 90, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
(10, 'Bund', 1, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL)
SET IDENTITY_INSERT WARENEINHEIT OFF
GO

SET IDENTITY_INSERT BUCHNR ON
INSERT INTO BUCHNR (BUCHNR_ID, BUCHUNGSTEXT) VALUES
(1, 'Holzverkauf 20 %'),
(2, 'Holzverkauf EU steuerfrei'),
(3, 'Holzeinkauf 13 %'),
(4, 'Dienstleistung 20 %'),
(5, 'Frachterlöse')
SET IDENTITY_INSERT BUCHNR OFF
SET IDENTITY_INSERT RECHNUNGSART ON
INSERT INTO RECHNUNGSART (RART_ID, RECHNUNGSART) VALUES
(1, 'Rechnung'),
(2, 'Gutschrift'),
(3, 'Sammelrechnung'),
(4, 'Barverkauf'),
(5, 'Stornorechnung für Käufer')
SET IDENTITY_INSERT RECHNUNGSART OFF
GO

-- The classes that a selection names. Disabled ones are still found on old logs.
SET IDENTITY_INSERT HOLZART ON
INSERT INTO HOLZART (ID, HA, BEZEICHNUNG, [DISABLE]) VALUES
(1, 'FI', 'Fichte', NULL),
(2, 'TA', 'Tanne', 0),
(3, 'KI', 'Kiefer', 0),
(4, 'LA', 'Lärche', 0),
(5, 'DG', 'Douglasie', 0),
(6, 'BU', 'Buche', 0),
(7, 'EI', 'Eiche', 0),
(8, 'ES', 'Esche', 1),
(9, 'AH', 'Ahorn', NULL),
(10, 'BI', 'Birke', 1)
SET IDENTITY_INSERT HOLZART OFF
SET IDENTITY_INSERT HOLZSORTE ON
INSERT INTO HOLZSORTE (ID, HS, BEZEICHNUNG, [DISABLE]) VALUES
(1, 'L', 'Langholz', NULL),
(2, 'B', 'Blochholz', 0),
(3, 'S', 'Schleifholz', 0),
(4, 'F', 'Faserholz', 0),
(5, 'W', 'Waldhackgut', 0),
(6, 'ST', 'Stangen', 0),
(7, 'BR', 'Brennholz', NULL),
(8, 'GR', 'Grubenholz', 1)
SET IDENTITY_INSERT HOLZSORTE OFF
SET IDENTITY_INSERT GUETEKLASSE ON
INSERT INTO GUETEKLASSE (ID, GKL, BEZEICHNUNG, [DISABLE]) VALUES
(1, 'A', 'Ausgesuchte Ware', NULL),
(2, 'B', 'Normale Güte', 0),
(3, 'C', 'Fehlerhafte Güte', 0),
(4, 'CX', 'Käferholz und Bruch', 0),
(5, 'D', 'Sägefähig', 0),
(6, 'AUS', 'Ausschuss', 1)
SET IDENTITY_INSERT GUETEKLASSE OFF
SET IDENTITY_INSERT STKL ON
INSERT INTO STKL (ID, STKL, BEZEICHNUNG, [DISABLE]) VALUES
(1, '1a', '10 bis 14 cm', NULL),
(2, '1b', '15 bis 19 cm', 0),
(3, '2a', '20 bis 24 cm', 0),
(4, '2b', '25 bis 29 cm', 0),
(5, '3a', '30 bis 34 cm', 0),
(6, '3b', '35 bis 39 cm', 0),
(7, '4', '40 bis 49 cm', 0),
(8, '5', '50 cm und mehr', 0),
(9, '6', 'Übermaß', 1)
SET IDENTITY_INSERT STKL OFF
GO

-- The first statistic has an empty text: a line that shows it has none. Number 15 is not offered.
INSERT INTO STATISTIK (STATISTIK_ID, [TEXT]) VALUES
(0, ''),
(1, 'Mengenstaffel'),
(2, 'Rindenabzug'),
(3, 'Güteabschlag'),
(4, 'Zuschlag zertifiziert'),
(5, 'Fracht'),
(6, 'Manipulation'),
(7, 'Wegebenützung'),
(8, 'Rabatt'),
(9, 'Bonus'),
(10, 'Provision'),
(11, 'Verbandsbeitrag'),
(12, 'Vermessung'),
(13, 'Skonto'),
(14, 'Rundung'),
(15, NULL)
GO

SET IDENTITY_INSERT WARENKATALOG ON
INSERT INTO WARENKATALOG (ART_ID, BEZEICH1, ID_FORMULA, EINHPREIS, SUBSET_DEF) VALUES
(1, 'Frachtkostenersatz', 2, 8.5, NULL),
(2, 'Rindenabzug Fichte', 1, -10, '83 IN (''FI'') ;'),
(3, 'Käferholzabschlag', 1, -25.75, '83 IN (''FI'', ''KI'') ;90 IN (''CX'') ;'),
(4, 'Verbandsbeitrag', 3, 0.4, NULL),
(5, 'Vermessung je Stück', 4, 1.235, NULL),
(6, 'Zuschlag für zertifiziertes Rundholz aus bäuerlichem Wald', 1, 2.5, '87 IN (''L'') ;')
INSERT INTO WARENKATALOG (ART_ID, BEZEICH1, ID_FORMULA, EINHPREIS, SUBSET_DEF, VER_TYPE, ID_ACCESS_LEVELS, [DISABLE]) VALUES
(7, 'Dieselzuschlag', 2, 0.35, NULL, 'A3', NULL, NULL),
(8, 'Mautersatz bis 2023', 2, 1.1, NULL, NULL, NULL, 1),
(9, 'Vertriebsprovision', 3, 1.75, NULL, NULL, 5, 0)
SET IDENTITY_INSERT WARENKATALOG OFF
GO

-- Models of surcharge and deduction lines.
SET IDENTITY_INSERT WORKBENCH_MODEL ON
INSERT INTO WORKBENCH_MODEL (ID_MODEL, CATEGORY, MODEL) VALUES
(1, 'ABSCHLAG', 'Sägewerk Standard'),
(2, 'ABSCHLAG', 'Industrieholz frei Werk'),
(3, 'ABSCHLAG1', 'Einkauf Kleinwald'),
(4, 'ABSCHLAG1', 'Einkauf Großwald'),
(5, 'ABSCHLAG3', 'Fracht mit Dieselzuschlag')
SET IDENTITY_INSERT WORKBENCH_MODEL OFF
INSERT INTO WORKBENCH_MODEL_LINE (ID_MODEL, LINE_NUM, STATISTIK, BEZEICH, WERT_TEXT, WERT_LINE, SUBSET_DEF, ART_ID) VALUES
(1, 0, 2, 'Rindenabzug Fichte', '-10,00', NULL, '83 IN (''FI'') ;', 2),
(1, 1, 3, 'Käferholzabschlag', '-25,75', '1', '90 IN (''CX'') ;', 3),
(1, 2, 13, 'Skonto', '-2,00', '1,2', NULL, NULL),
(2, 0, 5, 'Frachtkostenersatz', '8,50', NULL, NULL, 1),
(2, 1, 6, 'Manipulation am Werksplatz', '-1,20', NULL, '87 IN (''F'', ''S'') ;', NULL),
(3, 0, 11, 'Verbandsbeitrag', '-0,40', NULL, NULL, 4),
(3, 1, 7, 'Wegebenützung', '-1,20', '1', NULL, NULL),
(4, 0, 1, 'Mengenstaffel ab 500 Fm', '1,50', NULL, NULL, NULL),
(4, 1, 4, 'Zuschlag zertifiziert', '2,00', NULL, '87 IN (''L'') ;', NULL),
(4, 2, 12, 'Vermessung je Stück', '-1,24', '1,2', NULL, 5),
(5, 0, 5, 'Dieselzuschlag', '0,35', NULL, NULL, 7)
GO

-- The lookup lists of the logistics settings. Weekdays count from 1 = Sunday.
SET IDENTITY_INSERT WVO_T_BELIEFERUNG ON
INSERT INTO WVO_T_BELIEFERUNG (ID, [SHORT], [LONG]) VALUES
(1, 'AB', 'Abruf durch das Werk'),
(2, 'KW', 'Gleichmäßig nach Kalenderwochen'),
(3, 'FR', 'Freie Anlieferung')
SET IDENTITY_INSERT WVO_T_BELIEFERUNG OFF
SET IDENTITY_INSERT WVO_T_LIEFERPARITAT ON
INSERT INTO WVO_T_LIEFERPARITAT (ID, [SHORT], [LONG]) VALUES
(1, 'FS', 'Frei Straße, LKW-befahrbar'),
(2, 'FW', 'Frei Werk'),
(3, 'FB', 'Frei Bahnhof verladen')
SET IDENTITY_INSERT WVO_T_LIEFERPARITAT OFF
INSERT INTO WVO_T_BEREITSELLUNGS (ID, [SHORT], [LONG]) VALUES
(1, 'So', 'Sonntag'),
(2, 'Mo', 'Montag'),
(3, 'Di', 'Dienstag'),
(4, 'Mi', 'Mittwoch'),
(5, 'Do', 'Donnerstag'),
(6, 'Fr', 'Freitag'),
(7, 'Sa', 'Samstag')
GO

-- MESZAHL 1 shows the measure-number column of the price lines; ARTIKEL 1 takes the article columns of
-- the deduction models; STANDARDMANDANT is the client that the host starts with.
INSERT INTO WORKBENCH_SETTING ([NAME], [VALUE]) VALUES
('MESZAHL', '0'),
('ARTIKEL', '0'),
('STANDARDMANDANT', '1'),
('PATHOFWVOWEBVERTRAEGE', 'vertragsdokumente')
GO
