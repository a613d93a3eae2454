// The page's own texts. Those of the screens come with the screens.

const texts = {
  de: {
    interrupted: 'Verbindung unterbrochen – es wird neu verbunden …',
    expired: 'Die frühere Sitzung ist abgelaufen. Nicht gespeicherte Eingaben sind nicht mehr da.',
    failure: 'Ein Teil dieser Seite konnte nicht dargestellt werden. Bitte laden Sie die Seite neu (F5); Ihre Eingaben bleiben erhalten.',
    tooLong: 'Dieser Text ist zu lang. Er wurde nicht übernommen; das Feld ist, wie es war.',
    dropped: 'Die letzte Eingabe wurde nicht angenommen und ist verworfen. Alles andere ist erhalten.',
    fileTooLarge: 'Diese Datei ist zu groß. Bitte wählen Sie eine andere.',
    fileNotSent: 'Die Datei konnte nicht übertragen werden. Bitte versuchen Sie es noch einmal.',
    fileSending: 'Wird übertragen:',
    fileMade: 'Datei zum Speichern:',
    dismiss: 'Hinweis schließen',
    close: 'Schließen (Esc)',
    pick: 'Auswählen (F4)',
    mark: 'Zeichen',
    again: 'Neu beginnen',
    endedTitle: 'Sitzung beendet',
    ended: {
      closed: 'Sie haben die Anwendung geschlossen.',
      stopped: 'Die Anwendung wurde auf diesem Rechner beendet. Nicht gespeicherte Eingaben wurden verworfen.',
      failed: 'Die Sitzung wurde wegen eines Fehlers beendet. Nicht gespeicherte Eingaben wurden verworfen.',
      gone: 'Die Verbindung war zu lange unterbrochen. Nicht gespeicherte Eingaben wurden verworfen.',
      abandoned: 'Die Verbindung war zu lange unterbrochen. Nicht gespeicherte Eingaben wurden verworfen.',
      full: 'Es sind bereits so viele Sitzungen geöffnet wie zulässig. Schließen Sie ein anderes Fenster und versuchen Sie es noch einmal.',
      takenOver: 'Diese Sitzung wird in einem anderen Fenster fortgesetzt.',
      restarted: 'Die Anwendung wurde neu gestartet. Öffnen Sie bitte die Adresse, die sie dabei ausgegeben hat. Nicht gespeicherte Eingaben wurden verworfen.',
      unreachable: 'Die Anwendung antwortet nicht mehr. Wurde sie neu gestartet, öffnen Sie bitte die Adresse, die sie dabei ausgegeben hat.',
    },
    user: 'geändert, noch nicht gespeichert',
    colleague: 'von jemand anderem geändert',
    working: 'Einen Moment …',
    filters: 'Filter',
    up: 'Erhöhen',
    down: 'Verringern',
  },
  en: {
    interrupted: 'Connection interrupted – reconnecting …',
    expired: 'The earlier session has expired. Entries that were not saved are gone.',
    failure: 'A part of this page could not be shown. Please load the page again (F5); what you have entered is kept.',
    tooLong: 'This text is too long. It was not taken over; the field is as it was.',
    dropped: 'The last entry was not accepted and has been discarded. Everything else is kept.',
    fileTooLarge: 'This file is too large. Please choose another one.',
    fileNotSent: 'The file could not be sent. Please try again.',
    fileSending: 'Sending:',
    fileMade: 'File to save:',
    dismiss: 'Dismiss',
    close: 'Close (Esc)',
    pick: 'Choose (F4)',
    mark: 'Mark',
    again: 'Start again',
    endedTitle: 'Session ended',
    ended: {
      closed: 'You have closed the application.',
      stopped: 'The application on this machine has stopped. Entries that were not saved were discarded.',
      failed: 'The session ended because of an error. Entries that were not saved were discarded.',
      gone: 'The connection was interrupted for too long. Entries that were not saved were discarded.',
      abandoned: 'The connection was interrupted for too long. Entries that were not saved were discarded.',
      full: 'As many sessions are open as are allowed. Close another window and try again.',
      takenOver: 'This session goes on in another window.',
      restarted: 'The application was started anew. Please open the address that it printed then. Entries that were not saved were discarded.',
      unreachable: 'The application does not answer any more. If it was started anew, please open the address that it printed then.',
    },
    user: 'changed, not saved yet',
    colleague: 'changed by someone else',
    working: 'One moment …',
    filters: 'Filters',
    up: 'Increase',
    down: 'Decrease',
  },
};

let language = 'de';

export function setLanguage(name) {
  language = name in texts ? name : 'de';
  document.documentElement.lang = language;
}

export function text(name) {
  return texts[language][name];
}
