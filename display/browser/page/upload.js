// Sends a file of the user's to the session, and says how far it has come.

export class Upload {
  #request = new XMLHttpRequest();

  /**
   * @param onProgress called with the part that has been sent, 0 to 1
   * @param onEnd called with the status of the answer, 0 when there was none
   */
  constructor(address, file, onProgress, onEnd) {
    this.#request.open('POST', address);
    this.#request.upload.onprogress = ({ loaded, total }) => onProgress(total ? loaded / total : 1);
    this.#request.onload = () => onEnd(this.#request.status);
    this.#request.onerror = () => onEnd(0);
    this.#request.send(file);
  }

  cancel() {
    this.#request.abort();
  }
}
